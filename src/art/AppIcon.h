#pragma once

#include <QIcon>
#include <QPainter>

/// The program's own icon: a chameleon on the badge of the rainforest theme, whatever theme is in use.
namespace ormiva::AppIcon {

/// The edges in pixels in which a desktop asks for it.
inline constexpr int sizes[] = {16, 22, 24, 32, 48, 64, 96, 128, 256, 512};

/// Paints it into the square of `edge` units at the origin.
void paint(QPainter& painter, double edge);

/// The icon for windows, painted in each size when it is asked for.
QIcon icon();

} // namespace ormiva::AppIcon
