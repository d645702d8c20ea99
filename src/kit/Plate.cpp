#include "Plate.h"

#include "PlateNode.h"
#include "VLZoom.h"

#include <QQuickWindow>
#include <QSGImageNode>

#include <cmath>

namespace ormiva {

Plate::Plate(QQuickItem* parent)
    : QQuickItem(parent) {
    setFlag(ItemHasContents);
}

void Plate::setFill(const QColor& color) {
    setUpper(color);
    setLower(color);
}

QSGNode* Plate::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
    const bool painted = window()->rendererInterface()->graphicsApi() == QSGRendererInterface::Software;
    return painted ? paintedNode(old) : texturedNode(old);
}

QSGNode* Plate::paintedNode(QSGNode* old) const {
    auto* node = static_cast<PlateNode*>(old);
    if (!node)
        node = new PlateNode(*window()); // The scene graph owns it.
    node->show(m_style, size());
    return node;
}

/// With a graphics processor: the same picture as a texture, in the pixels that it takes on the screen.
QSGNode* Plate::texturedNode(QSGNode* old) const {
    auto* node = static_cast<QSGImageNode*>(old);
    const double scale = VLZoom::value() * window()->effectiveDevicePixelRatio();
    const QSize pixels(static_cast<int>(std::ceil(width() * scale)),
                       static_cast<int>(std::ceil(height() * scale)));
    if (pixels.isEmpty()) {
        delete node;
        return nullptr;
    }
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(scale, scale);
    m_style.paint(painter, boundingRect());
    painter.end();

    if (!node) {
        node = window()->createImageNode();
        node->setOwnsTexture(true);
        node->setFiltering(QSGTexture::Linear);
    }
    node->setTexture(window()->createTextureFromImage(image));
    node->setRect(boundingRect());
    return node;
}

} // namespace ormiva
