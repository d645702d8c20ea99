#include "HexColor.h"

#include <algorithm>

namespace ormiva {

namespace {

constexpr unsigned unreadable = 0x777777;

bool isHexDigit(QChar c) {
    return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
}

QStringView withoutHashes(QStringView text) {
    while (text.startsWith(u'#'))
        text = text.mid(1);
    while (text.endsWith(u'#'))
        text.chop(1);
    return text;
}

unsigned parse(QStringView digits) {
    // The digits are looked at first: toUInt would also take a sign, blanks and "0x".
    if (digits.isEmpty() || !std::all_of(digits.begin(), digits.end(), isHexDigit))
        return unreadable;
    bool fits = false;
    const unsigned value = digits.toUInt(&fits, 16);
    return fits ? value : unreadable;
}

} // namespace

QColor colorFromHexString(const QString& hexString) {
    return QColor::fromRgb(parse(withoutHashes(hexString)) & 0xffffffU);
}

} // namespace ormiva
