#pragma once

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace ormiva {

/// An item that Tab leads to, and that knows whether the keyboard led to it. The controls of Qt know it too,
/// but none of them lets a component say what it is to a screen reader.
class FocusItem : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool visualFocus READ visualFocus NOTIFY visualFocusChanged FINAL)
    Q_PROPERTY(int focusReason READ focusReason NOTIFY visualFocusChanged FINAL)

public:
    explicit FocusItem(QQuickItem* parent = nullptr);

    /// Whether it has the focus, and the keyboard is where it came from.
    bool visualFocus() const;
    /// How it last got the focus, a Qt::FocusReason.
    int focusReason() const { return m_reason; }

Q_SIGNALS:
    void visualFocusChanged();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    Qt::FocusReason m_reason = Qt::NoFocusReason;
};

} // namespace ormiva
