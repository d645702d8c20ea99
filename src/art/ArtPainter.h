#pragma once

#include "VLKTheme.h"

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QStringList>

/// Paints the animals. Every painter draws on a canvas of 100 × 100 units, y downward, and may overrun it a
/// little; nothing is clipped. Animals look to the right. The callers scale the QPainter.
namespace ormiva::ArtPainter {

/// The art keys that have a drawing.
const QStringList& known();

/// The animal of an art key in its two colours; a plain creature for a key that has no drawing.
void draw(const QString& key, QPainter& context, const QColor& primary, const QColor& secondary);

/// The round plate behind an animal, in the colours of `theme`.
void badge(QPainter& context, const VLKTheme& theme);

} // namespace ormiva::ArtPainter
