#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>
#include <optional>

namespace ormiva {

/// A point in time, to the millisecond. It never goes into the records.
using Instant = std::chrono::sys_time<std::chrono::milliseconds>;

/// The user's current calendar: Gregorian in every locale, in the user's time zone. The one place where the
/// program asks for the time, the zone or the locale of dates, and so the one seam that tests replace.
namespace UserCalendar {

/// Where the calendar takes its circumstances from. Empty members mean those of the machine.
struct Surroundings {
    std::function<Instant()> clock;
    QString zone;   ///< an IANA name such as "Europe/Berlin"
    QString locale; ///< such as "de_DE"
};
void setSurroundings(Surroundings replacement);

/// Years are counted astronomically (0 is 1 BC), months 1 to 12, days 1 to 31.
struct Fields {
    qint64 year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

/// Years that can be computed with; days beyond are clamped to it.
constexpr qint64 lastYear = 2'000'000;

Instant now();
/// The locale for dates, as "de_DE"; "en_US" where the machine has none.
QString localeName();
Fields fields(Instant instant);
/// Noon of that day. An overflowing day is normalised (February 31 becomes a March day).
Instant noon(qint64 year, int month, int day);
/// The moment at which the clocks show `hour`:`minute` on the day of `day`: the first moment after it when
/// the clocks skip that time, the earlier one when they show it twice. Hours 0 to 23, minutes 0 to 59.
Instant at(Instant day, int hour, int minute);
/// The first moment of the day of `instant`.
Instant startOfDay(Instant instant);
/// The same time of day `days` calendar days later, by the rule of `at`. Where a zone left out the whole day,
/// it is that time on the next one. Absent beyond the years above.
std::optional<Instant> addingDays(Instant instant, qint64 days);
/// Whole calendar days from one to the other, negative when `to` is earlier.
qint64 wholeDays(Instant from, Instant to);

/// A piece of wall-clock time that never came, because the clocks were put forward.
struct SkippedTime {
    Instant after;    ///< the first moment after it
    qint64 begin = 0; ///< milliseconds of wall-clock time since 1970-01-01 00:00; included
    qint64 end = 0;   ///< excluded; what the clocks show at `after`
};
/// Those whose `after` lies behind `from` and not behind `to`, ascending.
QList<SkippedTime> skippedTimes(Instant from, Instant to);
/// What the clocks show at `instant`, in milliseconds since they showed 1970-01-01 00:00.
qint64 wallClock(Instant instant);

struct Age {
    int years = 0;
    int months =
        0; ///< the rest beyond the years, 0 to 11; 12 on the February 28 before a leap day's birthday
};
/// Whole years and months from one to the other, by the field difference of ICU; negative when `to` is
/// earlier.
Age age(Instant from, Instant to);

/// 28 to 31.
int daysInMonth(qint64 year, int month);
/// 1 (Sunday) to 7.
int weekday(Instant instant);
/// The day on which the locale's weeks begin, 1 (Sunday) to 7.
int firstWeekday();
/// The locale's abbreviated names of the days, Sunday first.
QStringList shortWeekdays();

/// The numbers of the days, "1" to "31", in the digits of the user's locale.
QStringList dayNumbers();

/// The month of `instant` with its year in the user's locale, as "March 2026" or "März 2026", in the
/// Gregorian calendar.
QString monthAndYear(Instant instant);
/// The day in the medium date style of the user's locale, in the Gregorian calendar.
QString mediumDate(Instant instant);
/// The time of day in the short style of the user's locale, as "9:05 AM" or "09:05".
QString shortTime(Instant instant);

} // namespace UserCalendar

} // namespace ormiva
