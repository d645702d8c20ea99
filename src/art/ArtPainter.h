#pragma once

#include "VLKTheme.h"

#include <QColor>
#include <QPainter>
#include <QPainterPath>

#include <optional>

/// Paints the animals. Every painter draws on a canvas of 100 × 100 units, y downward, and may overrun it a
/// little; nothing is clipped. The callers scale the QPainter.
namespace ormiva::ArtPainter {

/// The animal of an art key in its two colours; a plain creature for a key that has no drawing.
void draw(const QString& key, QPainter& context, const QColor& primary, const QColor& secondary);

/// The round plate behind an animal, in the colours of `theme`.
void badge(QPainter& context, const VLKTheme& theme);

/// The ellipse centred at (cx, cy).
QPainterPath ell(double cx, double cy, double w, double h);

/// An eye of radius `r` with its highlight, on a disc of `ring` when one is given.
void eye(QPainter& context, double x, double y, double r = 2.6, const std::optional<QColor>& ring = {});

} // namespace ormiva::ArtPainter
