#pragma once

#include "PlateStyle.h"

#include <QSGRenderNode>

class QQuickWindow;

namespace ormiva {

/// Paints a plate straight to the window of the software scene graph.
class PlateNode final : public QSGRenderNode {
public:
    explicit PlateNode(QQuickWindow& window);

    void show(const PlateStyle& style, const QSizeF& size);

    void render(const RenderState* state) override;
    RenderingFlags flags() const override { return BoundedRectRendering; }
    QRectF rect() const override { return m_area; }

private:
    QQuickWindow& m_window;
    PlateStyle m_style;
    QRectF m_area;
};

} // namespace ormiva
