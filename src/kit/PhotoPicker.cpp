#include "PhotoPicker.h"

#include "WholePicture.h"

#include <QBuffer>
#include <QColorSpace>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QObject>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace ormiva::PhotoPicker {

namespace {

constexpr int jpegQuality = 82;
constexpr qint64 maxFileSize = 512LL * 1024 * 1024;
/// Beyond this a header is believed to be broken, and nothing is decoded.
constexpr qint64 maxPixels = 300'000'000;
/// Up to this a picture is decoded whole, which at eight bytes a pixel is what Qt allows for one.
constexpr qint64 maxWholePixels = 256LL * 1024 * 1024 / 8;

/// What a file holds; nothing when it is no plain file, too large or not readable to its end.
std::optional<QByteArray> contents(const QString& path) {
    if (!QFileInfo(path).isFile())
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > maxFileSize)
        return std::nullopt;
    QByteArray data = file.readAll();
    if (file.error() != QFileDevice::NoError || data.size() != file.size())
        return std::nullopt;
    return data;
}

/// The size to which a picture is scaled; never larger than `size`.
QSize shrunk(const QSize& size, qint64 max) {
    const double scale = std::min(static_cast<double>(max) / std::max(size.width(), size.height()), 1.0);
    const auto pixels = [scale](int length) {
        return std::max(1, static_cast<int>(std::lround(length * scale)));
    };
    return {pixels(size.width()), pixels(size.height())};
}

/// The upright picture at its final size; null when that fails.
QImage decoded(const QByteArray& data, int max) {
    QBuffer buffer;
    buffer.setData(data);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    const bool isJpeg = reader.format() == "jpeg";
    if (!WholePicture::isWhole(data, reader.format()))
        return {};
    const QSize stored = reader.size(); // Not valid where the format doesn't tell it beforehand.
    const qint64 pixels = static_cast<qint64>(stored.width()) * stored.height();
    if (stored.isValid() && (stored.isEmpty() || pixels > maxPixels))
        return {};
    // A JPEG is decoded to twice what is needed, which takes a fraction of the time and memory, and halved
    // then: the decoder's own scaling is coarse. Other formats mix up transparent pixels when they scale, so
    // that is left to pictures that can't be decoded otherwise.
    if (isJpeg || pixels > maxWholePixels)
        reader.setScaledSize(shrunk(stored, isJpeg ? 2LL * max : max));
    const QImage image = reader.read();
    if (image.isNull())
        return {};
    QSize wanted = shrunk(stored.isValid() ? stored : image.size(), max);
    if (stored.isValid() && reader.transformation().testFlag(QImageIOHandler::TransformationRotate90))
        wanted.transpose();
    if (image.size() == wanted)
        return image;
    QImage scaled = image.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    scaled.setColorSpace(image.colorSpace());
    return scaled;
}

QImage inSRgb(QImage image) {
    if (!image.colorSpace().isValid() || image.colorSpace() == QColorSpace(QColorSpace::SRgb))
        return image;
    if (image.depth() < 32)
        image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    image.convertToColorSpace(QColorSpace::SRgb);
    return image;
}

/// A bitmap of nothing but the picture's colours.
QImage onWhite(const QImage& image) {
    constexpr int dotsPerMeter = 2835; // 72 per inch, on every screen
    QImage bitmap(image.size(), QImage::Format_RGB32);
    bitmap.setDotsPerMeterX(dotsPerMeter);
    bitmap.setDotsPerMeterY(dotsPerMeter);
    bitmap.fill(Qt::white);
    QPainter painter(&bitmap);
    painter.drawImage(QRect(QPoint(), image.size()), image);
    return bitmap;
}

} // namespace

FileType images() {
    QStringList suffixes = {QStringLiteral("jpeg"), QStringLiteral("jpe"), QStringLiteral("jfif")};
    for (const QByteArray& format : QImageReader::supportedImageFormats())
        suffixes.append(QString::fromLatin1(format));
    FileType type{QObject::tr("Images"), QStringLiteral("jpg"), QStringLiteral("public.image"), suffixes};
    type.otherSuffixes.removeDuplicates();
    type.otherSuffixes.removeAll(type.suffix);
    return type;
}

std::optional<QByteArray> pick(FilePanels& panels) {
    const auto path = panels.open({images()}, QObject::tr("Choose a photo"));
    const auto data = path ? contents(*path) : std::nullopt;
    return data ? shrink(*data) : std::nullopt;
}

std::optional<QByteArray> shrink(const QByteArray& data, int max) {
    if (max < 1)
        return std::nullopt;
    const QImage image = inSRgb(decoded(data, max));
    if (image.isNull())
        return std::nullopt;
    QBuffer buffer;
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(jpegQuality);
    if (!writer.write(onWhite(image)))
        return std::nullopt;
    return buffer.data();
}

} // namespace ormiva::PhotoPicker
