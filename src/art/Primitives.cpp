#include "Primitives.h"

#include <QLinearGradient>
#include <QTransform>

namespace ormiva::ArtPainter {

QColor at(QColor color, double opacity) {
    color.setAlphaF(static_cast<float>(opacity));
    return color;
}

QColor rgb(double red, double green, double blue) {
    return QColor::fromRgbF(static_cast<float>(red), static_cast<float>(green), static_cast<float>(blue));
}

QColor gray(double white) {
    return rgb(white, white, white);
}

QPainterPath ell(double cx, double cy, double w, double h) {
    QPainterPath path;
    path.addEllipse(QPointF(cx, cy), w / 2, h / 2);
    return path;
}

QPainterPath polygon(const QList<QPointF>& points) {
    QPainterPath path(points.first());
    for (const QPointF& point : points.mid(1))
        path.lineTo(point);
    path.closeSubpath();
    return path;
}

QPainterPath rot(const QPainterPath& path, double angle, double cx, double cy) {
    return QTransform().translate(cx, cy).rotateRadians(angle).translate(-cx, -cy).map(path);
}

QRadialGradient radial(QPointF centre, double startRadius, double endRadius, const QColor& from,
                       const QColor& to) {
    QRadialGradient gradient(centre, endRadius);
    gradient.setColorAt(0, from);
    if (startRadius < endRadius) // Not in the habitat of a page that is far higher than wide.
        gradient.setColorAt(startRadius / endRadius, from);
    gradient.setColorAt(1, to);
    return gradient;
}

void shade(QPainter& context, const QPainterPath& path, const QColor& color, double top, double bottom) {
    context.fillPath(path, color);
    const QRectF bounds = path.boundingRect();
    QLinearGradient light(bounds.center().x(), bounds.top(), bounds.center().x(), bounds.bottom());
    // Gradients run between premultiplied colours, so white fades to nothing and not to grey.
    light.setStops({{0, at(Qt::white, top)}, {0.5, Qt::transparent}, {1, at(Qt::black, bottom)}});
    context.fillPath(path, light);
}

QPen mitered(const QColor& color, double width, Qt::PenCapStyle cap) {
    QPen pen(color, width, Qt::SolidLine, cap, Qt::SvgMiterJoin);
    pen.setMiterLimit(10);
    return pen;
}

void line(QPainter& context, const QList<QPointF>& points, const QColor& color, double width,
          Qt::PenCapStyle cap) {
    QPainterPath path(points.first());
    for (const QPointF& point : points.mid(1))
        path.lineTo(point);
    context.strokePath(path, QPen(color, width, Qt::SolidLine, cap, Qt::RoundJoin));
}

void curve(QPainter& context, const QPointF& from, const QPointF& control, const QPointF& to,
           const QColor& color, double width) {
    QPainterPath path(from);
    path.quadTo(control, to);
    context.strokePath(path, mitered(color, width, Qt::RoundCap));
}

void eye(QPainter& context, double x, double y, double r, const std::optional<QColor>& ring) {
    if (ring)
        context.fillPath(ell(x, y, 2.8 * r, 2.8 * r), *ring);
    context.fillPath(ell(x, y, 2 * r, 2 * r), gray(0.06));
    context.fillPath(ell(x - 0.35 * r, y - 0.4 * r, 0.7 * r, 0.7 * r), at(Qt::white, 0.9));
}

void blueTongue(QPainter& context) {
    QPainterPath tongue({87, 55});
    tongue.quadTo(92, 52, 95, 57);
    tongue.quadTo(92, 60, 87, 57);
    context.fillPath(tongue, rgb(0.2, 0.35, 0.85));
}

} // namespace ormiva::ArtPainter
