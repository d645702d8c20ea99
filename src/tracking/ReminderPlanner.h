#pragma once

#include "Reminder.h"
#include "ReminderRequest.h"

#include <QList>

#include <functional>
#include <optional>

/// Turns stored reminders into moments, in the user's calendar and time zone. Pure but for those. A paused
/// reminder, an interval below one day and a damaged row (a time that no clock shows, a day or an occurrence
/// outside the years 1 to 9999) have no moments at all.
namespace ormiva::ReminderPlanner {

/// When the reminder falls due next. Once done, it is due its interval after that day, be that in the past.
/// Never done, it is due on the first day of its grid from `start` that isn't over at `now`; due exactly at
/// `now` is still to come.
std::optional<Instant> nextDue(const Reminder& reminder, Instant now);

/// True when the next moment lies before `now`, which only a reminder that was done once can reach.
bool isOverdue(const Reminder& reminder, Instant now);

/// The moments from `from` to `to`, both included, ascending, at most 400. Each is one interval of calendar
/// days after the one before, at the same time of day; a time that the clocks skip becomes the first moment
/// after it, from which the later ones go on.
QList<Instant> occurrences(const Reminder& reminder, Instant from, Instant to);

/// The notifications from `now` to `days` calendar days later, both included, by time and then in the order
/// of `reminders`; the 60 earliest. `petName` gives the name for a reminder's pet, or an empty text.
QList<ReminderRequest> plan(const QList<Reminder>& reminders,
                            const std::function<QString(std::optional<qint64>)>& petName, Instant now,
                            int days = 14);

} // namespace ormiva::ReminderPlanner
