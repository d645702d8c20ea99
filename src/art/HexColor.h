#pragma once

#include <QColor>
#include <QString>

namespace ormiva {

/// The sRGB colour of a palette text: hexadecimal digits, with "#" at its ends ignored. Of a longer number
/// the last six digits count; empty text and text that isn't a 32-bit hexadecimal number give the grey
/// 777777.
QColor colorFromHexString(const QString& hexString);

} // namespace ormiva
