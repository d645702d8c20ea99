#pragma once

#include <QByteArray>

/// Whether picture files are there to their end. Some decoders make up for what is missing, with grey or with
/// whatever the memory held before, and say nothing.
namespace ormiva::WholePicture {

/// False when the first picture of a file surely breaks off. `format` is what QImageReader calls it; those
/// whose decoders notice by themselves count as whole.
bool isWhole(const QByteArray& data, const QByteArray& format);

} // namespace ormiva::WholePicture
