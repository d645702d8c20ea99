#include "ScrollMotor.h"

#include <QQuickWindow>
#include <QTimer>

#include <algorithm>
#include <chrono>

namespace ormiva {

namespace {

constexpr double pointsPerNotch = 72;
constexpr double pointsPerArrow = 48;
/// What stays in sight when a page is turned.
constexpr double pageOverlap = 48;
constexpr double revealMargin = 14;

/// One axis of a Flickable.
struct Axis {
    QQuickItem& target;
    bool vertical;

    double read(const char* x, const char* y) const { return target.property(vertical ? y : x).toDouble(); }
    double room() const { return vertical ? target.height() : target.width(); }
    double start() const { return read("originX", "originY"); }
    double position() const { return read("contentX", "contentY"); }
    double end() const { return std::max(start(), start() + read("contentWidth", "contentHeight") - room()); }

    bool moveTo(double wanted) const {
        const double before = position();
        const double now = std::clamp(wanted, start(), end());
        if (now == before)
            return false;
        target.setProperty(vertical ? "contentY" : "contentX", now);
        return true;
    }

    /// `first` and `last` are the edges of what is to be seen, measured from the edge of the target.
    void reveal(double first, double last) const {
        if (last - first > room()) { // It can't be seen whole: enough when a part of it is.
            if (last < 0 || first > room())
                moveTo(position() + first - revealMargin);
        } else if (first < revealMargin) {
            moveTo(position() + first - revealMargin);
        } else if (last > room() - revealMargin) {
            moveTo(position() + last - room() + revealMargin);
        }
    }
};

} // namespace

ScrollMotor::ScrollMotor(QObject* parent)
    : QObject(parent) {}

void ScrollMotor::setTarget(QQuickItem* target) {
    if (m_target == target)
        return;
    m_target = target;
    if (m_target) {
        connect(m_target, &QQuickItem::windowChanged, this, &ScrollMotor::followWindow);
        followWindow(m_target->window());
    }
    Q_EMIT targetChanged();
}

bool ScrollMotor::wheel(const QPointF& angleDelta, int modifiers) {
    ++m_homing;
    QPointF turn = angleDelta;
    if (Qt::KeyboardModifiers(modifiers).testFlag(Qt::ShiftModifier))
        turn = turn.transposed();
    turn *= -pointsPerNotch / static_cast<double>(QWheelEvent::DefaultDeltasPerStep);
    return move(turn.x(), turn.y());
}

bool ScrollMotor::key(int key) {
    if (!m_target)
        return false;
    ++m_homing;
    const Axis axis{*m_target, true};
    const double page = std::max(pointsPerArrow, axis.room() - pageOverlap);
    switch (key) {
    case Qt::Key_Up:
        return axis.moveTo(axis.position() - pointsPerArrow);
    case Qt::Key_Down:
        return axis.moveTo(axis.position() + pointsPerArrow);
    case Qt::Key_PageUp:
        return axis.moveTo(axis.position() - page);
    case Qt::Key_PageDown:
        return axis.moveTo(axis.position() + page);
    case Qt::Key_Home:
        return axis.moveTo(axis.start());
    case Qt::Key_End:
        return axis.moveTo(axis.end());
    case Qt::Key_Left:
        return move(-pointsPerArrow, 0);
    case Qt::Key_Right:
        return move(pointsPerArrow, 0);
    default:
        return false;
    }
}

void ScrollMotor::reveal(QQuickItem* item) {
    if (!m_target || !item)
        return;
    const QRectF place = item->mapRectToItem(m_target, {0, 0, item->width(), item->height()});
    Axis{*m_target, true}.reveal(place.top(), place.bottom());
    if (Axis{*m_target, false}.end() > 0)
        Axis{*m_target, false}.reveal(place.left(), place.right());
}

bool ScrollMotor::move(double dx, double dy) {
    if (!m_target)
        return false;
    const bool sideways = dx != 0 && Axis{*m_target, false}.moveTo(Axis{*m_target, false}.position() + dx);
    const bool upright = dy != 0 && Axis{*m_target, true}.moveTo(Axis{*m_target, true}.position() + dy);
    return sideways || upright;
}

void ScrollMotor::home() {
    ++m_homing;
    homeNow();
    using namespace std::chrono_literals;
    for (const std::chrono::milliseconds delay : {0ms, 150ms, 400ms, 900ms, 1600ms})
        QTimer::singleShot(delay, this, [this, run = m_homing] {
            if (run == m_homing)
                homeNow();
        });
}

void ScrollMotor::homeNow() {
    if (!m_target)
        return;
    for (const bool vertical : {false, true})
        Axis{*m_target, vertical}.moveTo(Axis{*m_target, vertical}.start());
}

void ScrollMotor::followWindow(QQuickWindow* window) {
    if (m_window)
        disconnect(m_window, nullptr, this, nullptr);
    m_window = window;
    if (window)
        connect(window, &QQuickWindow::activeFocusItemChanged, this, &ScrollMotor::focusMoved);
}

void ScrollMotor::focusMoved() {
    QQuickItem* item = m_window ? m_window->activeFocusItem() : nullptr;
    if (!item || !m_target || item == m_target || !m_target->isAncestorOf(item) || !item->activeFocusOnTab())
        return;
    // What was clicked is in sight; moving it from under the pointer would only confuse.
    if (item->property("focusReason").toInt() == Qt::MouseFocusReason &&
        item->property("focusReason").isValid())
        return;
    reveal(item);
}

} // namespace ormiva
