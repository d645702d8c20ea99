#include "WholePicture.h"

#include <QtEndian>

namespace ormiva::WholePicture {

namespace {

/// Bytes that are read in order; beyond the end they are 0.
struct Bytes {
    const QByteArray& data;
    qsizetype at = 0;

    bool atEnd() const { return at >= data.size(); }
    unsigned next() {
        const qsizetype here = at++;
        return here < data.size() ? static_cast<unsigned char>(data[here]) : 0;
    }
};

/// Up to the end mark.
bool isWholeJpeg(const QByteArray& data) {
    Bytes bytes{data};
    while ((bytes.at = data.indexOf('\xFF', bytes.at)) >= 0) {
        ++bytes.at;
        const unsigned marker = bytes.next();
        if (marker == 0xD9)
            return true;
        if (marker == 0xFF) { // Padding before a marker.
            --bytes.at;
            continue;
        }
        // Escaped bytes of the picture, its restart marks and the start mark stand alone; all else tells its
        // length.
        const bool alone = marker <= 0x01 || (marker >= 0xD0 && marker <= 0xD8);
        if (!alone) {
            const qsizetype start = bytes.at;
            const unsigned high = bytes.next();
            bytes.at = start + 256 * high + bytes.next();
        }
        if (bytes.atEnd())
            return false;
    }
    return false;
}

/// Up to the end of the first picture.
bool isWholeGif(const QByteArray& data) {
    constexpr unsigned extension = 0x21;
    constexpr unsigned picture = 0x2C;
    Bytes bytes{data, 10};
    const auto skipColors = [&bytes](unsigned flags) {
        if (flags & 0x80)
            bytes.at += 3 << ((flags & 7) + 1);
    };
    const auto skipBlocks = [&bytes] {
        while (const unsigned length = bytes.next())
            bytes.at += length;
    };
    const unsigned flags = bytes.next();
    bytes.at += 2;
    skipColors(flags);
    while (!bytes.atEnd()) {
        const unsigned kind = bytes.next();
        if (kind == picture) {
            bytes.at += 8;
            skipColors(bytes.next());
            ++bytes.at;
            skipBlocks();
            return bytes.at <= data.size();
        }
        if (kind != extension)
            return false;
        ++bytes.at;
        skipBlocks();
    }
    return false;
}

/// As long as its header says.
bool isWholeBmp(const QByteArray& data) {
    constexpr qsizetype at = 2;
    return data.size() >= at + 4 && qFromLittleEndian<quint32>(data.constData() + at) <= data.size();
}

} // namespace

bool isWhole(const QByteArray& data, const QByteArray& format) {
    if (format == "jpeg")
        return isWholeJpeg(data);
    if (format == "gif")
        return isWholeGif(data);
    return format != "bmp" || isWholeBmp(data);
}

} // namespace ormiva::WholePicture
