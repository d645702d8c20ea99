#include "PhotoPicker.h"

#include "MadePhotos.h"
#include "Printers.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QColorSpace>
#include <QColorTransform>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QPainter>

#include <array>
#include <cmath>
#include <malloc.h>
#include <random>

namespace ormiva {

namespace {

using namespace ormiva::testing;

constexpr std::nullopt_t nothing = std::nullopt;

/// The picture of a photo, which has to be a JPEG.
QImage decoded(const std::optional<QByteArray>& photo) {
    if (!photo)
        return {};
    EXPECT_TRUE(photo->startsWith("\xFF\xD8\xFF"));
    return QImage::fromData(*photo, "JPEG");
}

QSize sizeOf(const std::optional<QByteArray>& photo) {
    return decoded(photo).size();
}

bool isLike(const QColor& color, const QColor& expected, int tolerance = 6) {
    return std::abs(color.red() - expected.red()) <= tolerance &&
           std::abs(color.green() - expected.green()) <= tolerance &&
           std::abs(color.blue() - expected.blue()) <= tolerance;
}

/// Whether there is a photo all of one colour, but for what JPEG loses.
::testing::AssertionResult isAll(const std::optional<QByteArray>& photo, const QColor& expected,
                                 int tolerance = 6) {
    const QImage image = decoded(photo);
    if (image.isNull())
        return ::testing::AssertionFailure() << "there is no picture";
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (!isLike(image.pixelColor(x, y), expected, tolerance))
                return ::testing::AssertionFailure()
                       << x << ", " << y << " is " << image.pixelColor(x, y).name().toStdString();
    return ::testing::AssertionSuccess();
}

/// A figure of this process in kilobytes.
qint64 memory(const char* figure) {
    QFile status(u"/proc/self/status"_qs);
    EXPECT_TRUE(status.open(QIODevice::ReadOnly));
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith(figure))
            return line.simplified().split(' ').at(1).toLongLong();
    ADD_FAILURE() << figure << " is not told";
    return 0;
}

/// By how many megabytes the memory in use rose at most during `work`.
qint64 peakMegabytes(const std::function<void()>& work) {
    malloc_trim(0); // What earlier work left free would be taken first, and not count.
    QFile reset(u"/proc/self/clear_refs"_qs);
    EXPECT_TRUE(reset.open(QIODevice::WriteOnly) && reset.write("5") == 1);
    reset.close();
    const qint64 before = memory("VmRSS:");
    work();
    return (memory("VmHWM:") - before) / 1024;
}

// -- Sizes --------------------------------------------------------------------------------------

TEST(Shrink, TakesTheLargerSideToNineHundred) {
    for (const char* format : {"JPEG", "PNG", "WEBP", "TIFF", "BMP"}) {
        EXPECT_EQ(sizeOf(PhotoPicker::shrink(encoded(plain(3000, 1500), format))), QSize(900, 450)) << format;
        EXPECT_EQ(sizeOf(PhotoPicker::shrink(encoded(plain(1500, 3000), format))), QSize(450, 900)) << format;
    }
}

TEST(Shrink, RoundsToWholePixels) {
    const auto shrunk = [](int width, int height, int max) {
        return sizeOf(PhotoPicker::shrink(encoded(plain(width, height), "PNG"), max));
    };
    EXPECT_EQ(shrunk(1801, 1200, 900), QSize(900, 600)); // 599.67
    EXPECT_EQ(shrunk(1000, 333, 900), QSize(900, 300));  // 299.7
    EXPECT_EQ(shrunk(1000, 335, 900), QSize(900, 302));  // 301.5
    EXPECT_EQ(shrunk(1000, 334, 900), QSize(900, 301));  // 300.6
    EXPECT_EQ(shrunk(2000, 1, 900), QSize(900, 1));      // 0.45
    EXPECT_EQ(shrunk(1, 2000, 10), QSize(1, 10));
    EXPECT_EQ(shrunk(64, 64, 1), QSize(1, 1));
}

TEST(Shrink, AJpegComesToTheSameSizeAsAnyOther) {
    for (const int width : {901, 1023, 1801, 2555})
        for (const int max : {900, 333, 17}) {
            const QImage image = plain(width, 777);
            EXPECT_EQ(sizeOf(PhotoPicker::shrink(encoded(image, "JPEG"), max)),
                      sizeOf(PhotoPicker::shrink(encoded(image, "PNG"), max)))
                << width << " to " << max;
        }
}

TEST(Shrink, NeverEnlarges) {
    for (const char* format : {"JPEG", "PNG"})
        for (const int max : {900, std::numeric_limits<int>::max()}) {
            const auto photo = PhotoPicker::shrink(encoded(plain(120, 80), format), max);
            EXPECT_EQ(sizeOf(photo), QSize(120, 80)) << format;
            EXPECT_TRUE(isAll(photo, Qt::darkCyan)) << format;
        }
    EXPECT_EQ(sizeOf(PhotoPicker::shrink(encoded(plain(900, 900), "PNG"))), QSize(900, 900));
    EXPECT_EQ(sizeOf(PhotoPicker::shrink(encoded(plain(1, 1), "PNG"))), QSize(1, 1));
}

TEST(Shrink, GivesNothingForNoSize) {
    for (const int max : {0, -1, std::numeric_limits<int>::min()})
        EXPECT_EQ(PhotoPicker::shrink(encoded(plain(10, 10), "PNG"), max), nothing) << max;
}

TEST(Shrink, WritesTheQualityThatWasAgreed) {
    const QImage image = noise(300, 200);
    const auto photo = PhotoPicker::shrink(encoded(image, "PNG"));
    ASSERT_NE(photo, nothing);
    EXPECT_GT(photo->size(), encoded(image, "JPEG", 80).size());
    EXPECT_LT(photo->size(), encoded(image, "JPEG", 84).size());
}

TEST(Shrink, BlendsWhatBecomesSmaller) {
    // Lines of one pixel: a scaler that only picks pixels would leave some of them.
    QImage lines(2700, 1350, QImage::Format_RGB32);
    for (int y = 0; y < lines.height(); ++y)
        for (int x = 0; x < lines.width(); ++x)
            lines.setPixel(x, y, x % 3 == 0 ? qRgb(255, 255, 255) : qRgb(0, 0, 0));
    EXPECT_TRUE(isAll(PhotoPicker::shrink(encoded(lines, "PNG")), QColor(85, 85, 85)));
    EXPECT_TRUE(isAll(PhotoPicker::shrink(encoded(lines, "JPEG", 100)), QColor(85, 85, 85), 40));
}

// -- What the picture is ------------------------------------------------------------------------

TEST(Shrink, TurnsAPhotoUpright) {
    const QColor red(220, 30, 30);
    const QColor green(30, 180, 30);
    const QColor blue(30, 30, 220);
    const QColor black(10, 10, 10);
    using Corners = std::array<QColor, 4>; // top left, top right, bottom left, bottom right
    const std::array<Corners, 8> expected = {{
        {red, green, blue, black}, // as it is stored
        {green, red, black, blue}, // mirrored
        {black, blue, green, red}, // upside down
        {blue, black, red, green}, // flipped
        {red, blue, green, black}, // along one diagonal
        {blue, red, black, green}, // to be turned with the clock
        {black, green, blue, red}, // along the other diagonal
        {green, black, red, blue}, // to be turned against the clock
    }};
    QImage stored(1600, 800, QImage::Format_RGB32);
    QPainter painter(&stored);
    painter.fillRect(0, 0, 800, 400, red);
    painter.fillRect(800, 0, 800, 400, green);
    painter.fillRect(0, 400, 800, 400, blue);
    painter.fillRect(800, 400, 800, 400, black);
    painter.end();
    const QByteArray jpeg = encoded(stored, "JPEG", 95);
    for (int orientation = 1; orientation <= 8; ++orientation) {
        SCOPED_TRACE(orientation);
        const auto photo = PhotoPicker::shrink(withSegments(jpeg, orientationNote(orientation)), 100);
        const QImage image = decoded(photo);
        ASSERT_EQ(image.size(), orientation < 5 ? QSize(100, 50) : QSize(50, 100));
        const int right = image.width() - 4;
        const int bottom = image.height() - 4;
        const Corners corners = {image.pixelColor(3, 3), image.pixelColor(right, 3),
                                 image.pixelColor(3, bottom), image.pixelColor(right, bottom)};
        for (std::size_t corner = 0; corner < 4; ++corner)
            EXPECT_TRUE(isLike(corners[corner], expected[static_cast<std::size_t>(orientation - 1)][corner]))
                << corner << ": " << corners[corner].name().toStdString();
    }
}

TEST(Shrink, PutsTheTransparentOnWhite) {
    QImage glass(1200, 600, QImage::Format_ARGB32);
    glass.fill(QColor(0, 0, 0, 0));
    EXPECT_TRUE(isAll(PhotoPicker::shrink(encoded(glass, "PNG")), Qt::white));
    glass.fill(QColor(255, 0, 0, 128));
    EXPECT_TRUE(isAll(PhotoPicker::shrink(encoded(glass, "PNG")), QColor(255, 127, 127)));
    EXPECT_TRUE(isAll(PhotoPicker::shrink(encoded(glass, "PNG"), 2000), QColor(255, 127, 127)));
}

TEST(Shrink, DoesNotLetTheColourOfTransparentPixelsIn) {
    QImage net(1800, 900, QImage::Format_ARGB32);
    for (int y = 0; y < net.height(); ++y)
        for (int x = 0; x < net.width(); ++x)
            net.setPixel(x, y, (x + y) % 2 ? qRgba(255, 0, 0, 0) : qRgba(255, 255, 255, 255));
    EXPECT_TRUE(isAll(PhotoPicker::shrink(encoded(net, "PNG")), Qt::white));
}

TEST(Shrink, TakesGreyPalettesAndManyBits) {
    const QColor color(120, 120, 120);
    for (const QImage::Format format :
         {QImage::Format_Grayscale8, QImage::Format_Grayscale16, QImage::Format_Indexed8,
          QImage::Format_RGBX64, QImage::Format_RGBA64, QImage::Format_RGB888}) {
        const QImage image = plain(1000, 500, color).convertToFormat(format);
        EXPECT_TRUE(isAll(PhotoPicker::shrink(encoded(image, "PNG")), color)) << format;
        EXPECT_TRUE(isAll(PhotoPicker::shrink(encoded(image, "TIFF")), color)) << format;
    }
    const QImage grey = plain(1000, 500, color).convertToFormat(QImage::Format_Grayscale8);
    EXPECT_TRUE(isAll(PhotoPicker::shrink(encoded(grey, "JPEG")), color));
    QImage ink(1000, 500, QImage::Format_Mono);
    ink.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
    ink.fill(1);
    EXPECT_TRUE(isAll(PhotoPicker::shrink(encoded(ink, "PNG")), Qt::white));
}

TEST(Shrink, TakesTheColoursOfPrint) {
    const QByteArray cmyk = QByteArray::fromBase64(
        "/9j/7gAOQWRvYmUAZAAAAAAC/9sAQwADAgIDAgIDAwMDBAMDBAUIBQUEBAUKBwcGCAwKDAwLCgsLDQ4SEA0OEQ4L"
        "CxAWEBETFBUVFQwPFxgWFBgSFBUU/9sAQwEDBAQFBAUJBQUJFA0LDRQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQU"
        "FBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQU/8AAFAgACAAIBAERAAIRAQMRAQQRAP/EABUAAQEAAAAAAAAAAAAAAAAA"
        "AAYI/8QAFBABAAAAAAAAAAAAAAAAAAAAAP/EABUBAQEAAAAAAAAAAAAAAAAAAAYJ/8QAFBEBAAAAAAAAAAAAAAAA"
        "AAAAAP/aAA4EAQACEQMRBAAAPwBAcJ6LAf/Z");
    EXPECT_TRUE(isAll(PhotoPicker::shrink(cmyk), QColor(200, 40, 60)));
}

TEST(Shrink, GivesTheColoursOfAWiderSpaceInTheCommonOne) {
    const QColorSpace wide(QColorSpace::DisplayP3);
    const QColor stored(200, 100, 50);
    const QColor seen = wide.transformationToColorSpace(QColorSpace::SRgb).map(stored);
    ASSERT_FALSE(isLike(seen, stored, 8));
    for (const int width : {1200, 600}) {
        QImage image = plain(width, 600, stored);
        image.setColorSpace(wide);
        for (const char* format : {"JPEG", "PNG"})
            EXPECT_TRUE(isAll(PhotoPicker::shrink(encoded(image, format, 95)), seen))
                << format << " " << width;
    }
}

TEST(Shrink, TellsNothingButThePicture) {
    const QByteArray words = "taken at 48.2 N 16.4 E";
    QByteArray jpeg = encoded(plain(1200, 800), "JPEG");
    jpeg = withSegments(jpeg, orientationNote(6) + segment('\xFE', words) +
                                  segment('\xE1', "http://ns.adobe.com/xap/1.0/" + words) +
                                  segment('\xED', words));
    QImage described = plain(1200, 800);
    described.setText(u"Comment"_qs, QString::fromLatin1(words));
    described.setColorSpace(QColorSpace::AdobeRgb);
    described.setDotsPerMeterX(11811);
    const QByteArray png = encoded(described, "PNG");
    for (const QByteArray& picture : {jpeg, png}) {
        const auto photo = PhotoPicker::shrink(picture);
        ASSERT_NE(photo, nothing);
        for (const char* trace : {"48.2", "Exif", "xap", "ICC_PROFILE", "\xFF\xFE", "\xFF\xED"})
            EXPECT_FALSE(photo->contains(trace)) << trace;
        QBuffer buffer;
        buffer.setData(*photo);
        EXPECT_EQ(QImageReader(&buffer).transformation(), QImageIOHandler::TransformationNone);
        EXPECT_EQ(decoded(photo).text(), QString());
    }
}

TEST(Shrink, GivesTheSameBytesForTheSamePicture) {
    const QByteArray picture = encoded(noise(1000, 700), "PNG");
    EXPECT_EQ(PhotoPicker::shrink(picture), PhotoPicker::shrink(picture));
}

// -- Pictures that are too large ----------------------------------------------------------------

TEST(Shrink, TakesAPhotoOfTwoHundredMegapixelsWithLittleMemory) {
    QImage strip = plain(20000, 16, Qt::darkCyan);
    QPainter(&strip).fillRect(10000, 0, 10000, 16, Qt::darkRed);
    const QByteArray photo = stacked(strip, 625);
    QBuffer buffer;
    buffer.setData(photo);
    ASSERT_EQ(QImageReader(&buffer).size(), QSize(20000, 10000));
    std::optional<QByteArray> small;
    const qint64 megabytes = peakMegabytes([&] { small = PhotoPicker::shrink(photo); });
    const QImage image = decoded(small);
    ASSERT_EQ(image.size(), QSize(900, 450));
    for (const int y : {0, 225, 449}) {
        EXPECT_TRUE(isLike(image.pixelColor(200, y), Qt::darkCyan)) << y;
        EXPECT_TRUE(isLike(image.pixelColor(700, y), Qt::darkRed)) << y;
    }
    EXPECT_LT(megabytes, 64); // The whole picture would be eight hundred.
    RecordProperty("megabytes", static_cast<int>(megabytes));
}

TEST(Shrink, TakesAPictureThatCouldNotBeDecodedWhole) {
    const QByteArray png = encoded(plain(9000, 8000), "PNG", 90);
    ASSERT_TRUE(QImage::fromData(png).isNull());
    EXPECT_TRUE(isAll(PhotoPicker::shrink(png), Qt::darkCyan));
    EXPECT_EQ(sizeOf(PhotoPicker::shrink(png)), QSize(900, 800));
}

TEST(Shrink, GivesNothingForAPictureOfAbsurdSize) {
    ASSERT_EQ(QImage::fromData(pngClaiming(4, 4)), plain(4, 4)); // What is forged here is taken otherwise.
    for (const auto& [width, height] :
         {std::pair(100000U, 100000U), std::pair(0x7FFFFFFFU, 0x7FFFFFFFU), std::pair(900000U, 1U),
          std::pair(1U, 900000U), std::pair(17000U, 17000U), std::pair(0U, 4U)}) {
        const QByteArray png = pngClaiming(width, height);
        std::optional<QByteArray> photo;
        const qint64 megabytes = peakMegabytes([&] { photo = PhotoPicker::shrink(png); });
        EXPECT_EQ(photo, nothing) << width << " x " << height;
        EXPECT_LT(megabytes, 32) << width << " x " << height;
    }
}

// -- What is no picture -------------------------------------------------------------------------

TEST(Shrink, GivesNothingForWhatIsNoPicture) {
    for (const QByteArray& data :
         {QByteArray(), QByteArray("x"), QByteArray("My pet eats crickets.\n"), QByteArray(100000, '\0'),
          QByteArray(100000, '\xFF'), QByteArray("\xFF\xD8\xFF"), QByteArray("\x89PNG\r\n\x1A\n"),
          QByteArray("\xFF\xD8\xFF\xD9")})
        EXPECT_EQ(PhotoPicker::shrink(data), nothing) << data.left(24).toStdString();
}

TEST(Shrink, GivesNothingForAJpegThatBreaksOff) {
    const QImage image = noise(700, 500);
    // A thumbnail in the Exif note has an end mark of its own.
    const QByteArray thumbnail = segment('\xE1', "Exif" + encoded(plain(16, 16), "JPEG"));
    for (const bool progressive : {false, true}) {
        const QByteArray whole = withSegments(encoded(image, "JPEG", 82, progressive), thumbnail);
        for (int tenth = 0; tenth < 10; ++tenth)
            EXPECT_EQ(PhotoPicker::shrink(whole.left(whole.size() * tenth / 10)), nothing) << tenth;
        EXPECT_EQ(PhotoPicker::shrink(whole.chopped(2)), nothing);
        EXPECT_EQ(sizeOf(PhotoPicker::shrink(whole)), image.size());
        EXPECT_EQ(sizeOf(PhotoPicker::shrink(whole + "more behind it")), image.size());
    }
}

TEST(Shrink, GivesNothingForOtherPicturesThatBreakOff) {
    const QImage image = noise(300, 200);
    for (const char* format : {"PNG", "WEBP", "TIFF", "BMP", "PPM"}) {
        const QByteArray whole = encoded(image, format);
        for (int tenth = 0; tenth < 10; ++tenth)
            EXPECT_EQ(PhotoPicker::shrink(whole.left(whole.size() * tenth / 10)), nothing)
                << format << " " << tenth;
        EXPECT_EQ(sizeOf(PhotoPicker::shrink(whole)), image.size()) << format;
    }
}

TEST(Shrink, GivesNothingForAGifWhosePictureBreaksOff) {
    const QByteArray whole = QByteArray::fromBase64(
        "R0lGODlhGAAQAPEAAOYAGqIAXV0AohoA5iH5BAAAAAAALAAAAAAYABAAAAJHhI+py+2/wpES1GowDZta/oEiR5bm"
        "iaYqKpCtG7xcK9OCfdNxHu/5DwwKh0ThIHf8JZM35lIwiEKPUWp1Oq1qt9yu9wsOfwsAOw==");
    EXPECT_EQ(sizeOf(PhotoPicker::shrink(whole)), QSize(24, 16));
    for (qsizetype length = 0; length < whole.size() - 1; ++length) // The last byte is the end of the file.
        EXPECT_EQ(PhotoPicker::shrink(whole.left(length)), nothing) << length;
}

TEST(Shrink, StandsWhateverIsWrongInsideAFile) {
    std::minstd_rand random(11);
    for (const char* format : {"JPEG", "PNG", "WEBP", "TIFF", "BMP", "PPM"}) {
        const QByteArray whole = encoded(noise(60, 40), format);
        for (int round = 0; round < 150; ++round) {
            QByteArray broken = whole;
            for (int byte = 0; byte < 4; ++byte) // Most of them in the header, where they do most.
                broken[static_cast<qsizetype>(random()) % (byte % 2 ? broken.size() : 64)] =
                    static_cast<char>(random());
            const auto photo = PhotoPicker::shrink(broken, 50);
            if (photo) {
                EXPECT_LE(std::max(sizeOf(photo).width(), sizeOf(photo).height()), 50) << format << round;
            }
        }
    }
}

} // namespace
} // namespace ormiva
