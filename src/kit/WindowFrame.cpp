#include "WindowFrame.h"

#include "Failure.h"
#include "Numbers.h"
#include "OMPrefs.h"

#include <QGuiApplication>
#include <QScreen>

#include <chrono>
#include <optional>

namespace ormiva {

namespace {

/// From "x y width height".
std::optional<QRect> parsed(const QString& text) {
    QList<int> numbers;
    for (const QString& piece : text.split(u' ')) {
        const auto number = Numbers::parseInteger(piece);
        if (!number || *number < -100'000 || *number > 100'000)
            return std::nullopt;
        numbers.append(static_cast<int>(*number));
    }
    if (numbers.size() != 4 || numbers.at(2) < 1 || numbers.at(3) < 1)
        return std::nullopt;
    return QRect(numbers.at(0), numbers.at(1), numbers.at(2), numbers.at(3));
}

/// What windows may use of the screen that holds most of `frame`.
QRect roomFor(const QRect& frame, const QQuickWindow& window) {
    const QScreen* best = window.screen();
    qint64 most = 0;
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QSize shared = screen->availableGeometry().intersected(frame).size();
        const qint64 area = shared.isValid() ? qint64(shared.width()) * shared.height() : 0;
        if (area > most) {
            most = area;
            best = screen;
        }
    }
    return best->availableGeometry();
}

} // namespace

WindowFrame::WindowFrame(QObject* parent)
    : QObject(parent) {
    m_settled.setSingleShot(true);
    m_settled.setInterval(std::chrono::milliseconds(500));
    connect(&m_settled, &QTimer::timeout, this, &WindowFrame::save);
}

WindowFrame::~WindowFrame() {
    if (m_settled.isActive())
        save();
}

void WindowFrame::setWindow(QQuickWindow* window) {
    if (m_window == window)
        return;
    if (m_window)
        m_window->disconnect(this);
    m_window = window;
    if (m_window) {
        connect(m_window, &QWindow::xChanged, this, &WindowFrame::changed);
        connect(m_window, &QWindow::yChanged, this, &WindowFrame::changed);
        connect(m_window, &QWindow::widthChanged, this, &WindowFrame::changed);
        connect(m_window, &QWindow::heightChanged, this, &WindowFrame::changed);
    }
    Q_EMIT windowChanged();
}

void WindowFrame::changed() {
    if (m_window && m_window->isVisible())
        m_settled.start();
}

void WindowFrame::restore() {
    if (!m_window)
        return;
    if (const auto stored = m_key.isEmpty() ? std::nullopt : parsed(OMPrefs::value(m_key).toString())) {
        m_window->setGeometry(inside(*stored, roomFor(*stored, *m_window)));
        return;
    }
    QRect frame({0, 0}, m_window->size());
    const QRect room = m_window->screen()->availableGeometry();
    frame.moveCenter(room.center());
    m_window->setGeometry(inside(frame, room));
}

void WindowFrame::save() {
    m_settled.stop();
    if (!m_window || m_key.isEmpty())
        return;
    const QRect frame = m_window->geometry();
    try {
        OMPrefs::setValue(m_key, QStringLiteral("%1 %2 %3 %4")
                                     .arg(frame.x())
                                     .arg(frame.y())
                                     .arg(frame.width())
                                     .arg(frame.height()));
    } catch (const Failure&) {
        // Where a window stood isn't worth a message: next time it opens in the middle.
    }
}

QRect WindowFrame::inside(const QRect& frame, const QRect& room) {
    const QSize size = frame.size().boundedTo(room.size());
    const int x = std::clamp(frame.x(), room.x(), room.x() + room.width() - size.width());
    const int y = std::clamp(frame.y(), room.y(), room.y() + room.height() - size.height());
    return {QPoint(x, y), size};
}

} // namespace ormiva
