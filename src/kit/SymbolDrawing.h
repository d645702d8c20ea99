#pragma once

#include <QPainterPath>
#include <QString>

/// The symbols that the icon font doesn't have, as shapes to fill on a canvas of 24 × 24 units.
namespace ormiva::SymbolDrawing {

bool knows(const QString& name);
/// The shape of that symbol, empty when it isn't drawn here.
QPainterPath shape(const QString& name);

} // namespace ormiva::SymbolDrawing
