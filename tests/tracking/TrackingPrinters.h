#pragma once

#include "FixedCalendar.h"
#include "Printers.h"
#include "ReminderPlanner.h"

#include <QDateTime>

#include <gtest/gtest.h>

namespace ormiva {

inline void PrintTo(const ReminderRequest& request, std::ostream* out) {
    *out << ::testing::PrintToString(QStringList{request.id, request.title, request.body})
         << request.reminderID << ' ' << request.fire.time_since_epoch().count();
}

namespace testing {

/// A moment by the clocks of the fixed zone, as "2026-03-29 03:00".
inline QString shown(Instant instant) {
    const UserCalendar::Fields at = UserCalendar::fields(instant);
    return QString::asprintf("%04lld-%02d-%02d %02d:%02d", static_cast<long long>(at.year), at.month, at.day,
                             at.hour, at.minute) +
           (at.second == 0 ? QString() : QString::asprintf(":%02d", at.second));
}

inline QString shown(std::optional<Instant> instant) {
    return instant ? shown(*instant) : QStringLiteral("never");
}

inline QStringList shown(const QList<Instant>& instants) {
    QStringList texts;
    for (const Instant instant : instants)
        texts.append(shown(instant));
    return texts;
}

inline Reminder reminder(const OMDay& start, qint64 everyDays, qint64 hour, qint64 minute = 0) {
    Reminder reminder;
    reminder.id = 7;
    reminder.start = start;
    reminder.everyDays = everyDays;
    reminder.hour = hour;
    reminder.minute = minute;
    return reminder;
}

} // namespace testing
} // namespace ormiva
