#include "CrispItem.h"

#include "OMPrefs.h"
#include "VLZoom.h"

#include <QQuickWindow>

#include <cmath>

namespace ormiva {

CrispItem::CrispItem(QQuickItem* parent)
    : QQuickPaintedItem(parent) {
    setAntialiasing(true);
    connect(&OMPrefs::notifier(), &PrefsNotifier::changed, this, [this](const QString& key) {
        if (key == VLZoom::key)
            fitTexture();
    });
}

void CrispItem::itemChange(ItemChange change, const ItemChangeData& data) {
    QQuickPaintedItem::itemChange(change, data);
    if (change == ItemSceneChange || change == ItemDevicePixelRatioHasChanged)
        fitTexture();
}

void CrispItem::geometryChange(const QRectF& now, const QRectF& before) {
    QQuickPaintedItem::geometryChange(now, before);
    if (now.size() != before.size())
        fitTexture();
}

void CrispItem::setUnzoomed() {
    m_zoomed = false;
    fitTexture();
}

void CrispItem::fitTexture() {
    const double ratio =
        (m_zoomed ? VLZoom::value() : 1) * (window() ? window()->effectiveDevicePixelRatio() : 1);
    const QSize pixels(static_cast<int>(std::ceil(width() * ratio)),
                       static_cast<int>(std::ceil(height() * ratio)));
    if (pixels == textureSize())
        return;
    setTextureSize(pixels);
    update();
}

} // namespace ormiva
