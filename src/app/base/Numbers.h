#pragma once

#include <QString>

#include <optional>

/// Numbers to text and back, the same in every locale. Nothing else in the program formats or parses reals.
namespace ormiva::Numbers {

/// The whole of `text` as a base-10 integer: an optional "+" or "-", then ASCII digits and nothing else.
/// Absent when it is anything else, blanks included, or leaves the 64-bit range.
std::optional<qint64> parseInteger(QStringView text);

/// The whole of `text` as a decimal real, with an optional sign, fraction and exponent. Absent when it is
/// anything else: blanks, hexadecimal, "inf", "nan" and numbers too large for a double do not parse.
std::optional<double> parseReal(QStringView text);

/// C's "%.{decimals}f" of the C locale, ties to even on the exact binary value.
QString fixed(double value, int decimals);

/// The shortest decimal text that reads back as `value`; whole numbers keep a decimal point ("421.0").
QString shortest(double value);

/// `value` truncated towards zero; beyond the 64-bit range the nearest end of it, and 0 for NaN.
qint64 truncated(double value);

} // namespace ormiva::Numbers
