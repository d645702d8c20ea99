#pragma once

#include <QByteArray>
#include <QRectF>

#include <cairo.h>

namespace ormiva {

/// A pet's photo for a document. A JPEG goes into the file as it is, turned upright by the page; anything
/// else is decoded.
class PhotoSurface {
public:
    explicit PhotoSurface(const QByteArray& data);
    ~PhotoSurface();
    PhotoSurface(const PhotoSurface&) = delete;
    PhotoSurface& operator=(const PhotoSurface&) = delete;

    /// False when the bytes are no picture.
    bool isValid() const { return m_surface != nullptr; }
    /// Fits the upright picture into the rectangle's top left.
    void draw(cairo_t* context, const QRectF& rect) const;

private:
    cairo_surface_t* m_surface = nullptr;
    int m_transformation = 0; ///< QImageIOHandler::Transformations that make the stored picture upright
};

} // namespace ormiva
