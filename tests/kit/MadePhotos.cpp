#include "MadePhotos.h"

#include <QBuffer>
#include <QImageWriter>

#include <gtest/gtest.h>

#include <random>
#include <utility>

namespace ormiva::testing {

QByteArray encoded(const QImage& image, const char* format, int quality, bool progressive) {
    QBuffer buffer;
    QImageWriter writer(&buffer, format);
    writer.setQuality(quality);
    writer.setProgressiveScanWrite(progressive);
    EXPECT_TRUE(writer.write(image)) << format << ": " << writer.errorString().toStdString();
    return buffer.data();
}

QImage plain(int width, int height, const QColor& color) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

QImage noise(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    std::minstd_rand random(7);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgb(int(random() % 256), int(random() % 256), int(random() % 256)));
    return image;
}

QByteArray withSegments(QByteArray jpeg, const QByteArray& segments) {
    return jpeg.insert(2, segments);
}

QByteArray segment(char marker, const QByteArray& payload) {
    const auto length = static_cast<unsigned>(payload.size() + 2);
    return QByteArray("\xFF") + marker + static_cast<char>(length >> 8) + static_cast<char>(length & 0xFF) +
           payload;
}

QByteArray orientationNote(int orientation) {
    QByteArray exif = QByteArray::fromHex("45786966000049492a000800000001001201030001000000000000"
                                          "0000000000");
    exif[24] = static_cast<char>(orientation);
    return segment('\xE1', exif);
}

QByteArray stacked(const QImage& strip, int times) {
    QByteArray jpeg = encoded(strip, "JPEG", 82);
    const auto put = [&jpeg](qsizetype at, int value) {
        jpeg[at] = static_cast<char>(value >> 8);
        jpeg[at + 1] = static_cast<char>(value & 0xFF);
    };
    put(jpeg.indexOf("\xFF\xC0") + 5, 16 * times);
    const qsizetype scan = jpeg.indexOf("\xFF\xDA");
    const QByteArray head = jpeg.first(scan + 2 + 12);
    const QByteArray body = jpeg.mid(head.size()).chopped(2);
    jpeg = head;
    for (int strips = 0; strips < times; ++strips) {
        if (strips > 0) // The decoder begins anew at a restart mark, which are counted from 0 to 7.
            jpeg += QByteArray("\xFF") + static_cast<char>(0xD0 + (strips - 1) % 8);
        jpeg += body;
    }
    const QByteArray interval("\0\0", 2);
    jpeg.insert(scan, segment('\xDD', interval));
    put(scan + 4, strip.width() / 16);
    return jpeg + "\xFF\xD9";
}

QByteArray pngClaiming(quint32 width, quint32 height) {
    QByteArray png = encoded(plain(4, 4), "PNG");
    for (const auto& [at, value] : {std::pair(16, width), std::pair(20, height)})
        for (int byte = 0; byte < 4; ++byte)
            png[at + byte] = static_cast<char>(value >> (24 - 8 * byte));
    quint32 sum = 0xFFFFFFFF; // The header's own check sum.
    for (int at = 12; at < 29; ++at) {
        sum ^= static_cast<unsigned char>(png[at]);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum >> 1) ^ ((sum & 1) ? 0xEDB88320 : 0);
    }
    for (int byte = 0; byte < 4; ++byte)
        png[29 + byte] = static_cast<char>(~sum >> (24 - 8 * byte));
    return png;
}

} // namespace ormiva::testing
