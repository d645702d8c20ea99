#pragma once

#include "FilePanels.h"

#include <QByteArray>

#include <optional>

/// A pet's photo, from a file of the user's to the small JPEG that the records keep.
namespace ormiva::PhotoPicker {

/// The larger of a kept photo's width and height, in pixels, unless the picture was smaller.
inline constexpr int defaultMax = 900;

/// All kinds of pictures that can be decoded, as one type.
FileType images();

/// Asks for one picture and gives it shrunk to `defaultMax`. Nothing when the user didn't choose, or when the
/// file can't be read or decoded; nobody is told then.
std::optional<QByteArray> pick(FilePanels& panels);

/// The picture as a JPEG of at most `max` pixels in width and height, upright, in sRGB, on white where it is
/// transparent, and without anything else that the file told. A smaller picture keeps its size. Nothing when
/// `data` is no whole picture, when the picture is larger than any camera makes, or when `max` is below 1.
std::optional<QByteArray> shrink(const QByteArray& data, int max = defaultMax);

} // namespace ormiva::PhotoPicker
