#include "FocusItem.h"

namespace ormiva {

FocusItem::FocusItem(QQuickItem* parent)
    : QQuickItem(parent) {
    setActiveFocusOnTab(true);
}

bool FocusItem::visualFocus() const {
    return hasActiveFocus() && (m_reason == Qt::TabFocusReason || m_reason == Qt::BacktabFocusReason ||
                                m_reason == Qt::ShortcutFocusReason);
}

void FocusItem::focusInEvent(QFocusEvent* event) {
    QQuickItem::focusInEvent(event);
    m_reason = event->reason();
    Q_EMIT visualFocusChanged();
}

void FocusItem::focusOutEvent(QFocusEvent* event) {
    QQuickItem::focusOutEvent(event);
    Q_EMIT visualFocusChanged();
}

} // namespace ormiva
