#include "ReminderOracle.h"

#include <QDateTime>

namespace ormiva::testing {

using namespace std::chrono;

namespace {

Instant instantOf(const QDateTime& time) {
    return Instant(milliseconds(time.toMSecsSinceEpoch()));
}

local_days daysOf(const OMDay& day) {
    return local_days(year(static_cast<int>(day.y)) / day.m / day.d);
}

} // namespace

ReminderOracle::ReminderOracle(const QString& zone, int firstYear, int lastYear) {
    const QTimeZone table(zone.toLatin1());
    const QDateTime first(QDate(firstYear, 1, 1), QTime(0, 0), Qt::UTC);
    m_changes.push_back({instantOf(first), seconds(table.offsetFromUtc(first))});
    for (const QTimeZone::OffsetData& change :
         table.transitions(first, QDateTime(QDate(lastYear, 12, 31), QTime(0, 0), Qt::UTC)))
        m_changes.push_back({instantOf(change.atUtc), seconds(change.offsetFromUtc)});
}

std::vector<Instant> ReminderOracle::changes() const {
    std::vector<Instant> moments;
    for (std::size_t i = 1; i < m_changes.size(); ++i)
        moments.push_back(m_changes[i].at);
    return moments;
}

ReminderOracle::LocalTime ReminderOracle::local(Instant instant) const {
    auto offset = m_changes.front().offset;
    for (const Change& change : m_changes)
        if (change.at <= instant)
            offset = change.offset;
    return LocalTime(instant.time_since_epoch() + offset);
}

Instant ReminderOracle::firstAt(LocalTime wanted) const {
    Instant moment(wanted.time_since_epoch() - hours(40));
    while (local(moment) < wanted)
        moment += minutes(1);
    return moment;
}

local_days ReminderOracle::dayOf(Instant instant) const {
    return floor<days>(local(instant));
}

Instant ReminderOracle::at(const Reminder& reminder, local_days day) const {
    return firstAt(day + hours(reminder.hour) + minutes(reminder.minute));
}

std::optional<Instant> ReminderOracle::nextDue(const Reminder& reminder, Instant now) const {
    if (!reminder.active || reminder.everyDays < 1)
        return std::nullopt;
    if (reminder.lastDone)
        return at(reminder, daysOf(*reminder.lastDone) + days(reminder.everyDays));
    local_days day = daysOf(reminder.start);
    while (day + days(3) < dayOf(now) && day + days(reminder.everyDays) < dayOf(now))
        day += days(reminder.everyDays);
    while (at(reminder, day) < now)
        day += days(reminder.everyDays);
    return at(reminder, day);
}

QList<Instant> ReminderOracle::occurrences(const Reminder& reminder, Instant from, Instant to) const {
    QList<Instant> moments;
    for (auto cursor = nextDue(reminder, from); cursor && *cursor <= to && moments.size() < 400;
         cursor = firstAt(local(*cursor) + days(reminder.everyDays)))
        if (*cursor >= from)
            moments.append(*cursor);
    return moments;
}

} // namespace ormiva::testing
