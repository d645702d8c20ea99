#include "ReminderPlanner.h"

#include <algorithm>

namespace ormiva::ReminderPlanner {

namespace {

constexpr qsizetype mostOccurrences = 400;
constexpr qsizetype mostRequests = 60;
constexpr qint64 lastYear = 9999;
constexpr qint64 longestInterval = lastYear * 366;
constexpr qint64 dayInMilliseconds = 86'400'000;

bool isWithinYears(qint64 year) {
    return year >= 1 && year <= lastYear;
}

bool hasMoments(const Reminder& reminder) {
    return reminder.active && reminder.everyDays >= 1 && reminder.everyDays <= longestInterval &&
           reminder.hour >= 0 && reminder.hour <= 23 && reminder.minute >= 0 && reminder.minute <= 59 &&
           isWithinYears(reminder.start.y) && (!reminder.lastDone || isWithinYears(reminder.lastDone->y));
}

/// The reminder's time on `day`; absent outside the years.
std::optional<Instant> at(const Reminder& reminder, const OMDay& day) {
    if (!isWithinYears(day.y))
        return std::nullopt;
    return UserCalendar::at(day.date(), static_cast<int>(reminder.hour), static_cast<int>(reminder.minute));
}

/// `days` calendar days later, at the same time of day; absent outside the years.
std::optional<Instant> later(Instant instant, qint64 days) {
    const auto moved = UserCalendar::addingDays(instant, days);
    return moved && isWithinYears(UserCalendar::fields(*moved).year) ? moved : std::nullopt;
}

qint64 roundedUp(qint64 dividend, qint64 divisor) {
    return (dividend + divisor - 1) / divisor;
}

/// Where single steps from `cursor` stand when they are about to reach `from`: at the last step before it, or
/// at a later one. Only a step into skipped time changes the time of day, so all others are taken at once.
std::optional<Instant> caughtUp(Instant cursor, qint64 everyDays, Instant from) {
    const qint64 interval = everyDays * dayInMilliseconds;
    for (const UserCalendar::SkippedTime& skipped : UserCalendar::skippedTimes(cursor, from)) {
        const qint64 clock = UserCalendar::wallClock(cursor);
        const qint64 steps = roundedUp(std::max<qint64>(0, skipped.begin - clock), interval);
        if (steps == 0 || clock + steps * interval >= skipped.end)
            continue;
        const auto landed = later(cursor, steps * everyDays);
        if (!landed)
            return std::nullopt;
        cursor = *landed;
    }
    const qint64 ahead = UserCalendar::wallClock(from) - UserCalendar::wallClock(cursor);
    return later(cursor, std::max<qint64>(0, ahead / interval - 1) * everyDays);
}

QString titleOf(const Reminder& reminder, const QString& petName) {
    return petName.isEmpty() ? reminder.displayTitle()
                             : reminder.displayTitle() + QStringLiteral(" — ") + petName;
}

QString bodyOf(const Reminder& reminder) {
    return reminder.kind == ReminderKind::Uvb
               ? QStringLiteral(
                     "UVB output fades before the bulb looks dim. Replace it as your bulb maker or vet "
                     "advises.")
               : QStringLiteral("Due now · VLK Ormiva");
}

} // namespace

std::optional<Instant> nextDue(const Reminder& reminder, Instant now) {
    if (!hasMoments(reminder))
        return std::nullopt;
    if (reminder.lastDone)
        return at(reminder, reminder.lastDone->adding(reminder.everyDays));

    const auto first = at(reminder, reminder.start);
    if (!first || *first >= now)
        return first;
    const qint64 gap = std::max<qint64>(0, reminder.start.daysTo(OMDay::of(now)));
    OMDay candidate = reminder.start.adding(gap / reminder.everyDays * reminder.everyDays);
    for (;;) {
        const auto moment = at(reminder, candidate);
        if (!moment || *moment >= now)
            return moment;
        candidate = candidate.adding(reminder.everyDays);
    }
}

bool isOverdue(const Reminder& reminder, Instant now) {
    const auto due = nextDue(reminder, now);
    return due && *due < now;
}

QList<Instant> occurrences(const Reminder& reminder, Instant from, Instant to) {
    QList<Instant> moments;
    auto cursor = nextDue(reminder, from);
    if (cursor && *cursor < from)
        cursor = caughtUp(*cursor, reminder.everyDays, from);
    while (cursor && *cursor <= to && moments.size() < mostOccurrences) {
        if (*cursor >= from)
            moments.append(*cursor);
        cursor = later(*cursor, reminder.everyDays);
    }
    return moments;
}

QList<ReminderRequest> plan(const QList<Reminder>& reminders,
                            const std::function<QString(std::optional<qint64>)>& petName, Instant now,
                            int days) {
    const Instant horizon = UserCalendar::addingDays(now, days).value_or(now);
    QList<ReminderRequest> requests;
    for (const Reminder& reminder : reminders)
        for (const Instant fire : occurrences(reminder, now, horizon)) {
            const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(fire.time_since_epoch());
            requests.append({QStringLiteral("om.rem.%1.%2").arg(reminder.id).arg(seconds.count()),
                             reminder.id, fire, titleOf(reminder, petName(reminder.petID)),
                             bodyOf(reminder)});
        }
    std::ranges::stable_sort(requests, {}, &ReminderRequest::fire);
    return requests.first(std::min(requests.size(), mostRequests));
}

} // namespace ormiva::ReminderPlanner
