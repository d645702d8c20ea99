#pragma once

#include "Files.h"

/// Writing a file so that it is there whole or not at all: whatever stood at the place before is kept until
/// the new one is complete and on the disk.
namespace ormiva::WholeFile {

/// A name for the new file while it is being made, in the folder of `path`.
QString temporaryName(const QString& path);

/// Writes `bytes` to `path`, in place of whatever file is there. Throws FileError.
void write(const QString& path, const QByteArray& bytes, const Files& files = Files());

} // namespace ormiva::WholeFile
