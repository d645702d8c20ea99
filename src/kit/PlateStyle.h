#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

namespace ormiva {

/// How a plate looks: a rounded rectangle with a slope of colour from its top to its bottom, and a rim.
struct PlateStyle {
    QColor top = Qt::transparent;
    QColor bottom = Qt::transparent;
    QColor rim = Qt::transparent;
    double rimWidth = 0; ///< in points; the rim lies inside the rectangle
    double radius = 0;   ///< of the corners, at most half of the shorter edge

    /// Paints it into `area`.
    void paint(QPainter& painter, const QRectF& area) const;

    friend bool operator==(const PlateStyle&, const PlateStyle&) = default;
};

} // namespace ormiva
