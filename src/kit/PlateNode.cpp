#include "PlateNode.h"

#include <QQuickWindow>
#include <QSGRendererInterface>

namespace ormiva {

PlateNode::PlateNode(QQuickWindow& window)
    : m_window(window) {}

void PlateNode::show(const PlateStyle& style, const QSizeF& size) {
    m_style = style;
    m_area = QRectF({}, size);
    markDirty(DirtyMaterial | DirtyGeometry);
}

void PlateNode::render(const RenderState* state) {
    auto* painter = static_cast<QPainter*>(
        m_window.rendererInterface()->getResource(&m_window, QSGRendererInterface::PainterResource));
    if (!painter)
        return;
    // In the coordinates of the window; empty when nothing of the plate can be seen.
    const QRegion* clip = state->clipRegion();
    if (!clip || clip->isEmpty())
        return;
    painter->setClipRegion(*clip, Qt::ReplaceClip);
    painter->setTransform(matrix()->toTransform());
    painter->setOpacity(inheritedOpacity());
    m_style.paint(*painter, m_area);
}

} // namespace ormiva
