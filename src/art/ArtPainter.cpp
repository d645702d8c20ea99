#include "ArtPainter.h"

#include "VLKitTheme.h"

#include <QLinearGradient>
#include <QRadialGradient>

namespace ormiva::ArtPainter {

namespace {

/// A gradient between two circles about one centre, as a span of a QRadialGradient.
QRadialGradient radial(QPointF centre, double startRadius, double endRadius, const QColor& from,
                       const QColor& to) {
    QRadialGradient gradient(centre, endRadius);
    gradient.setColorAt(0, from);
    gradient.setColorAt(startRadius / endRadius, from);
    gradient.setColorAt(1, to);
    return gradient;
}

QColor at(QColor color, double opacity) {
    color.setAlphaF(static_cast<float>(opacity));
    return color;
}

} // namespace

QPainterPath ell(double cx, double cy, double w, double h) {
    QPainterPath path;
    path.addEllipse(QPointF(cx, cy), w / 2, h / 2);
    return path;
}

void eye(QPainter& context, double x, double y, double r, const std::optional<QColor>& ring) {
    if (ring)
        context.fillPath(ell(x, y, 2.8 * r, 2.8 * r), *ring);
    context.fillPath(ell(x, y, 2 * r, 2 * r), QColor::fromRgbF(0.06F, 0.06F, 0.06F));
    context.fillPath(ell(x - 0.35 * r, y - 0.4 * r, 0.7 * r, 0.7 * r), at(Qt::white, 0.9));
}

void badge(QPainter& context, const VLKTheme& theme) {
    const QPainterPath plate = ell(50, 50, 98, 98);
    context.fillPath(plate,
                     radial({42, 30}, 4, 70, at(color(theme.panelTop), 0.95), color(theme.panelBottom)));

    const QColor warm = QColor::fromRgbF(1.0F, 0.85F, 0.55F);
    context.fillPath(plate, radial({38, 20}, 2, 50, at(warm, 0.22), at(warm, 0)));

    // Qt counts angles against the clock, the canvas with it: 25° to 155° downward is -25° over -130°.
    QPainterPath segment;
    const QRectF circle(1, 1, 98, 98);
    segment.arcMoveTo(circle, -25);
    segment.arcTo(circle, -25, -130);
    segment.closeSubpath();
    context.fillPath(segment, at(Qt::black, 0.22));

    QLinearGradient rim(50, 0, 50, 100);
    rim.setColorAt(0, at(Qt::white, 0.45));
    rim.setColorAt(1, at(Qt::black, 0.5));
    context.strokePath(ell(50, 50, 97, 97), QPen(rim, 1.6));
}

void draw(const QString&, QPainter& context, const QColor& primary, const QColor&) {
    context.fillPath(ell(50, 52, 40, 40), primary);
    eye(context, 58, 48);
}

} // namespace ormiva::ArtPainter
