#include "OMDelegate.h"

#include "OMPrefs.h"
#include "OMStore.h"
#include "SingleInstance.h"

#include <algorithm>

namespace ormiva {

OMDelegate::OMDelegate(OMStore* store, NotificationActions notifications, QObject* parent)
    : QObject(parent)
    , m_store(store)
    , m_notifications(std::move(notifications)) {}

bool OMDelegate::applicationDidFinishLaunching(SingleInstance& instance) {
    if (!instance.claim())
        return false;
    if (!m_store)
        return true;

    reschedule();
    requestPermissionIfNeeded();

    m_debounce.setSingleShot(true);
    m_debounce.setTimerType(Qt::PreciseTimer);
    m_debounce.setInterval(debounce);
    connect(m_store, &OMStore::revisionChanged, &m_debounce, qOverload<>(&QTimer::start));
    connect(&m_debounce, &QTimer::timeout, this, [this] {
        requestPermissionIfNeeded();
        reschedule();
    });
    m_turn.setInterval(turn);
    connect(&m_turn, &QTimer::timeout, m_store, &OMStore::changed);
    m_turn.start();
    return true;
}

void OMDelegate::reschedule() const {
    if (m_notifications.reschedule)
        m_notifications.reschedule();
}

void OMDelegate::requestPermissionIfNeeded() const {
    if (!m_notifications.requestPermission || !OMPrefs::remindersOn())
        return;
    const QList<Reminder> reminders = m_store->reminders();
    if (std::any_of(reminders.begin(), reminders.end(), [](const Reminder& r) { return r.active; }))
        m_notifications.requestPermission();
}

} // namespace ormiva
