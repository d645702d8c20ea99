#include "SoftShadow.h"

#include <QPainter>

#include <cmath>

namespace ormiva {

namespace {

constexpr double darkest = 0.35;
constexpr double radius = 10;

/// Distance from a point to a rounded square of half-edge `half` about the origin, negative inside.
double distance(double x, double y, double half, double corner) {
    const double dx = std::abs(x) - half + corner;
    const double dy = std::abs(y) - half + corner;
    const double outside = std::hypot(std::max(dx, 0.0), std::max(dy, 0.0));
    return outside + std::min(std::max(dx, dy), 0.0) - corner;
}

/// How much of the light a blurred edge takes away at that distance from it, 0 to 1.
double shade(double distance) {
    return 0.5 * std::erfc(distance / (radius * std::sqrt(2.0) / 1.6));
}

QImage paint() {
    const int edge = 2 * (SoftShadow::reach + SoftShadow::corner) + 2;
    QImage image(edge, edge, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < edge; ++y)
        for (int x = 0; x < edge; ++x) {
            const double middle = (edge - 1) / 2.0;
            const double away =
                distance(x - middle, y - middle, edge / 2.0 - SoftShadow::reach, SoftShadow::corner);
            const int alpha = static_cast<int>(std::lround(255 * darkest * shade(away)));
            image.setPixel(x, y, qRgba(0, 0, 0, alpha));
        }
    return image;
}

} // namespace

SoftShadow::SoftShadow()
    : QQuickImageProvider(QQuickImageProvider::Image) {}

QImage SoftShadow::requestImage(const QString&, QSize* size, const QSize&) {
    static const QImage image = paint();
    *size = image.size();
    return image;
}

} // namespace ormiva
