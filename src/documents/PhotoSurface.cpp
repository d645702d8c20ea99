#include "PhotoSurface.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>
#include <cstring>
#include <memory>
#include <numbers>

namespace ormiva {

namespace {

void destroyBytes(void* bytes) {
    delete static_cast<QByteArray*>(bytes);
}

void destroyImage(void* image) {
    delete static_cast<QImage*>(image);
}

/// A surface of the picture's size that the file holds as the JPEG itself. Its own pixels are never used.
cairo_surface_t* jpegSurface(const QByteArray& data, const QSize& size) {
    cairo_surface_t* surface =
        cairo_image_surface_create(CAIRO_FORMAT_RGB16_565, size.width(), size.height());
    auto bytes = std::make_unique<QByteArray>(data);
    const auto* begin = reinterpret_cast<const unsigned char*>(bytes->constData());
    const auto length = static_cast<unsigned long>(bytes->size());
    if (cairo_surface_set_mime_data(surface, CAIRO_MIME_TYPE_JPEG, begin, length, destroyBytes,
                                    bytes.get()) == CAIRO_STATUS_SUCCESS)
        bytes.release();
    return surface;
}

cairo_surface_t* pixelSurface(QImage decoded) {
    auto image =
        std::make_unique<QImage>(std::move(decoded).convertToFormat(QImage::Format_ARGB32_Premultiplied));
    cairo_surface_t* surface =
        cairo_image_surface_create_for_data(image->bits(), CAIRO_FORMAT_ARGB32, image->width(),
                                            image->height(), static_cast<int>(image->bytesPerLine()));
    static const cairo_user_data_key_t key{};
    if (cairo_surface_set_user_data(surface, &key, image.get(), destroyImage) == CAIRO_STATUS_SUCCESS)
        image.release();
    return surface;
}

} // namespace

PhotoSurface::PhotoSurface(const QByteArray& data) {
    QBuffer buffer;
    buffer.setData(data);
    QImageReader reader(&buffer);
    reader.setAutoTransform(false);
    m_transformation = reader.transformation();
    const bool isJpeg = reader.format() == "jpeg";
    // Decoding tells whether the picture is whole.
    const QImage image = reader.read();
    if (image.isNull())
        return;
    m_surface = isJpeg ? jpegSurface(data, image.size()) : pixelSurface(image);
    if (cairo_surface_status(m_surface) != CAIRO_STATUS_SUCCESS) {
        cairo_surface_destroy(m_surface);
        m_surface = nullptr;
    }
}

PhotoSurface::~PhotoSurface() {
    if (m_surface)
        cairo_surface_destroy(m_surface);
}

void PhotoSurface::draw(cairo_t* context, const QRectF& rect) const {
    const double width = cairo_image_surface_get_width(m_surface);
    const double height = cairo_image_surface_get_height(m_surface);
    const bool turned = (m_transformation & QImageIOHandler::TransformationRotate90) != 0;
    const double uprightWidth = turned ? height : width;
    const double uprightHeight = turned ? width : height;
    const double scale =
        std::min(rect.width() / std::max(uprightWidth, 1.0), rect.height() / std::max(uprightHeight, 1.0));

    cairo_save(context);
    cairo_translate(context, rect.x(), rect.y());
    cairo_scale(context, scale, scale);
    // As the toolkit does it: mirror and flip the stored picture, then turn it clockwise.
    if (turned) {
        cairo_translate(context, uprightWidth, 0);
        cairo_rotate(context, std::numbers::pi / 2);
    }
    if ((m_transformation & QImageIOHandler::TransformationMirror) != 0) {
        cairo_translate(context, width, 0);
        cairo_scale(context, -1, 1);
    }
    if ((m_transformation & QImageIOHandler::TransformationFlip) != 0) {
        cairo_translate(context, 0, height);
        cairo_scale(context, 1, -1);
    }
    cairo_set_source_surface(context, m_surface, 0, 0);
    cairo_paint(context);
    cairo_restore(context);
}

} // namespace ormiva
