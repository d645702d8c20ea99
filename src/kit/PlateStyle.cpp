#include "PlateStyle.h"

#include <QLinearGradient>

#include <algorithm>

namespace ormiva {

namespace {

QBrush brush(const PlateStyle& style, const QRectF& area) {
    if (style.top == style.bottom)
        return style.top;
    QLinearGradient slope(area.topLeft(), area.bottomLeft());
    slope.setColorAt(0, style.top);
    slope.setColorAt(1, style.bottom);
    return slope;
}

} // namespace

void PlateStyle::paint(QPainter& painter, const QRectF& area) const {
    const bool hasRim = rimWidth > 0 && rim.alpha() > 0;
    const double inset = hasRim ? rimWidth / 2 : 0;
    const QRectF shape = area.adjusted(inset, inset, -inset, -inset);
    if (shape.isEmpty())
        return;
    const double corner = std::clamp(radius - inset, 0.0, std::min(shape.width(), shape.height()) / 2);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(hasRim ? QPen(rim, rimWidth) : QPen(Qt::NoPen));
    painter.setBrush(brush(*this, area));
    painter.drawRoundedRect(shape, corner, corner);
}

} // namespace ormiva
