#include "Numbers.h"

#include <QLocale>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace ormiva::Numbers {

namespace {

/// The characters of `text` without a leading "+", or nothing when one of them is not in `allowed`.
std::optional<QByteArray> plainAscii(QStringView text, QStringView allowed) {
    for (const QChar c : text)
        if (!allowed.contains(c))
            return std::nullopt;
    QByteArray bytes = text.toLatin1();
    if (bytes.startsWith('+')) {
        bytes.remove(0, 1);
        if (bytes.startsWith('-'))
            return std::nullopt;
    }
    return bytes;
}

} // namespace

std::optional<qint64> parseInteger(QStringView text) {
    const auto bytes = plainAscii(text, u"+-0123456789");
    if (!bytes)
        return std::nullopt;
    qint64 value = 0;
    const char* end = bytes->constData() + bytes->size();
    const auto [stop, error] = std::from_chars(bytes->constData(), end, value);
    if (error != std::errc() || stop != end)
        return std::nullopt;
    return value;
}

std::optional<double> parseReal(QStringView text) {
    const auto bytes = plainAscii(text, u"+-.0123456789eE");
    if (!bytes)
        return std::nullopt;
    double value = 0;
    const char* end = bytes->constData() + bytes->size();
    const auto [stop, error] = std::from_chars(bytes->constData(), end, value);
    if (stop != end || error == std::errc::invalid_argument)
        return std::nullopt;
    if (error == std::errc::result_out_of_range) {
        // Too large or too small; only the former is no number. QLocale tells them apart (QByteArray does
        // not).
        value = QLocale::c().toDouble(QString::fromLatin1(*bytes));
        if (std::isinf(value))
            return std::nullopt;
    }
    return value;
}

QString fixed(double value, int decimals) {
    std::array<char, 400> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                            std::chars_format::fixed, decimals);
    Q_ASSERT(error == std::errc());
    return QString::fromLatin1(buffer.data(), end - buffer.data());
}

QString shortest(double value) {
    if (std::isfinite(value) && value == std::trunc(value))
        return fixed(value, 0) + QStringLiteral(".0");
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

qint64 truncated(double value) {
    if (std::isnan(value))
        return 0;
    // 2^63 is the first double past the range; its negative is the last one in it.
    constexpr double limit = 9223372036854775808.0;
    if (value >= limit)
        return std::numeric_limits<qint64>::max();
    if (value < -limit)
        return std::numeric_limits<qint64>::min();
    return static_cast<qint64>(value);
}

} // namespace ormiva::Numbers
