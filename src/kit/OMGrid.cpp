#include "OMGrid.h"

#include <algorithm>

namespace ormiva {

OMGrid::OMGrid(QQuickItem* parent)
    : QQuickItem(parent) {
    connect(this, &OMGrid::settingsChanged, this, &OMGrid::polish);
}

void OMGrid::itemChange(ItemChange change, const ItemChangeData& data) {
    QQuickItem::itemChange(change, data);
    if (change == ItemChildAddedChange) {
        connect(data.item, &QQuickItem::implicitHeightChanged, this, &OMGrid::polish);
        connect(data.item, &QQuickItem::visibleChanged, this, &OMGrid::polish);
        polish();
    } else if (change == ItemChildRemovedChange) {
        disconnect(data.item, nullptr, this, nullptr);
        polish();
    }
}

void OMGrid::geometryChange(const QRectF& now, const QRectF& before) {
    QQuickItem::geometryChange(now, before);
    if (now.width() != before.width())
        place();
}

void OMGrid::componentComplete() {
    QQuickItem::componentComplete();
    place();
}

void OMGrid::updatePolish() {
    place();
}

QList<QQuickItem*> OMGrid::shownChildren() const {
    QList<QQuickItem*> shown;
    for (QQuickItem* child : childItems())
        // Repeaters are children too, without a size of their own.
        if (child->isVisible() && child->implicitHeight() > 0)
            shown.append(child);
    return shown;
}

void OMGrid::place() {
    if (m_placing || !isComponentComplete())
        return;
    m_placing = true; // Giving a child its width changes its height, and asks for this again.
    const QList<QQuickItem*> items = shownChildren();
    const int columns = std::max(1, m_columns);
    const double cell = std::max(0.0, (width() - m_spacing * (columns - 1)) / columns);
    double top = 0;
    for (qsizetype first = 0; first < items.size(); first += columns) {
        const QList<QQuickItem*> row = items.mid(first, columns);
        double tallest = 0;
        for (QQuickItem* item : row) {
            item->setWidth(cell);
            tallest = std::max(tallest, item->implicitHeight());
        }
        for (qsizetype i = 0; i < row.size(); ++i) {
            row.at(i)->setPosition({static_cast<double>(i) * (cell + m_spacing), top});
            row.at(i)->setHeight(tallest);
        }
        top += tallest + m_spacing;
    }
    setImplicitHeight(std::max(0.0, top - m_spacing));
    m_placing = false;
}

} // namespace ormiva
