#pragma once

#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace ormiva {

/// A painted item that has as many pixels as it takes on the screen, whatever the zoom of the interface and
/// the density of the screen; without that it would blur.
class CrispItem : public QQuickPaintedItem {
    Q_OBJECT
    QML_ANONYMOUS

public:
    explicit CrispItem(QQuickItem* parent = nullptr);

protected:
    /// Says that the item lies outside what the interface zoom scales.
    void setUnzoomed();
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void geometryChange(const QRectF& now, const QRectF& before) override;

private:
    void fitTexture();

    bool m_zoomed = true;
};

} // namespace ormiva
