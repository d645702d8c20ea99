#pragma once

#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>

namespace ormiva {

class OMStore;
class SingleInstance;

/// What the delegate does about notifications. Members that are not set do nothing.
struct NotificationActions {
    std::function<void()> reschedule;
    std::function<void()> requestPermission;
};

/// Keeps running what a windowed run needs: notifications that follow the records, and the hourly turn of
/// "today".
class OMDelegate final : public QObject {
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds debounce{1000};
    static constexpr std::chrono::seconds turn{3600};

    /// `store` may be null; nothing is planned or watched then.
    OMDelegate(OMStore* store, NotificationActions notifications, QObject* parent = nullptr);

    /// Plans the notifications, asks for permission when there is something to notify of, and from now on
    /// follows the records' changes. False when another instance runs: nothing has been started, and this
    /// process should end.
    bool applicationDidFinishLaunching(SingleInstance& instance);

    /// The hourly timer; runs only once the application has launched with a store.
    QTimer& turnTimer() { return m_turn; }

private:
    void reschedule() const;
    void requestPermissionIfNeeded() const;

    OMStore* m_store;
    NotificationActions m_notifications;
    QTimer m_debounce;
    QTimer m_turn;
};

} // namespace ormiva
