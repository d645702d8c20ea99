#pragma once

#include <QColor>
#include <QList>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <optional>

/// The shared vocabulary of all painters, in units of the canvas of 100 × 100.
namespace ormiva::ArtPainter {

/// The colour at another opacity, 0 to 1.
QColor at(QColor color, double opacity);
/// sRGB components, 0 to 1.
QColor rgb(double red, double green, double blue);
QColor gray(double white);

/// The ellipse centred at (cx, cy).
QPainterPath ell(double cx, double cy, double w, double h);
/// The closed shape through the points.
QPainterPath polygon(const QList<QPointF>& points);
/// The path turned by `angle` radians, clockwise on the screen, about (cx, cy).
QPainterPath rot(const QPainterPath& path, double angle, double cx, double cy);

/// A gradient between two circles about one centre; it pads beyond both.
QRadialGradient radial(QPointF centre, double startRadius, double endRadius, const QColor& from,
                       const QColor& to);

/// Fills the path so that it looks round: lighter at the top of its bounds, darker at their bottom.
void shade(QPainter& context, const QPainterPath& path, const QColor& color, double top = 0.18,
           double bottom = 0.28);

/// A pen with corners as pointed as ten times its width.
QPen mitered(const QColor& color, double width, Qt::PenCapStyle cap = Qt::FlatCap);
/// Strokes a polyline with round joins.
void line(QPainter& context, const QList<QPointF>& points, const QColor& color, double width,
          Qt::PenCapStyle cap = Qt::RoundCap);
/// Strokes one quadratic curve with round ends.
void curve(QPainter& context, const QPointF& from, const QPointF& control, const QPointF& to,
           const QColor& color, double width);

/// An eye of radius `r` with its highlight, on a disc of `ring` when one is given.
void eye(QPainter& context, double x, double y, double r = 2.6, const std::optional<QColor>& ring = {});
/// The tongue that a blue-tongue skink shows.
void blueTongue(QPainter& context);

} // namespace ormiva::ArtPainter
