#pragma once

#include <QImage>
#include <QVariantMap>

#include <optional>

class QQmlComponent;

/// Draws QML without a window, one pixel to a point, by the software scene graph. It takes an application
/// object but no display and no running event loop. What can't be drawn is told on standard error.
namespace ormiva::PageRenderer {

/// Draws a page, whose root is an Item, `width` pixels wide and as high as its implicitHeight comes to be at
/// that width; a root without one keeps its height. It lies on the plain background of the theme in use.
/// `properties` are given to the root. Nothing when the page can't be made, has no height or is too high.
std::optional<QImage> draw(QQmlComponent& page, int width, const QVariantMap& properties = {});

/// Draws a page into "{name}.png" in `folder` and prints "wrote {name}.png {width}x{height}", or, when any of
/// that fails, "could not render {name}". The file is written whole or not at all. True when it was written.
bool shot(const QString& name, QQmlComponent& page, int width, const QString& folder,
          const QVariantMap& properties = {});

} // namespace ormiva::PageRenderer
