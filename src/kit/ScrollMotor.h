#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace ormiva {

/// Moves a Flickable or a list the way a desktop expects: by the wheel, by keys, and to what takes the focus.
class ScrollMotor : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem* target READ target WRITE setTarget NOTIFY targetChanged FINAL)

public:
    explicit ScrollMotor(QObject* parent = nullptr);

    QQuickItem* target() const { return m_target; }
    void setTarget(QQuickItem* target);

    /// Scrolls by a turn of the wheel, in eighths of a degree. False when the end was reached already, so
    /// that what lies around may scroll.
    Q_INVOKABLE bool wheel(const QPointF& angleDelta, int modifiers);
    /// Scrolls by an arrow key, Page Up, Page Down, Home or End; false for every other key.
    Q_INVOKABLE bool key(int key);
    /// Moves as little as needed for `item`, a descendant of the target, to be seen.
    Q_INVOKABLE void reveal(QQuickItem* item);
    /// Moves by that many points within the limits; false when nothing moved.
    Q_INVOKABLE bool move(double dx, double dy);
    /// Moves to the top left corner at once, on the next turn of the event loop, and again until 1.6 seconds
    /// later, against layouts that settle late. What the user scrolls meanwhile ends it.
    Q_INVOKABLE void home();

Q_SIGNALS:
    void targetChanged();

private:
    void homeNow();
    void followWindow(QQuickWindow* window);
    void focusMoved();

    QPointer<QQuickItem> m_target;
    QPointer<QQuickWindow> m_window;
    int m_homing = 0; ///< which call of `home` may still move
};

} // namespace ormiva
