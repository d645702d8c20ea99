#include "UserCalendar.h"

#include <QByteArray>
#include <QList>

#include <algorithm>
#include <limits>
#include <memory>
#include <unicode/basictz.h>
#include <unicode/datefmt.h>
#include <unicode/dtfmtsym.h>
#include <unicode/gregocal.h>
#include <unicode/numfmt.h>
#include <unicode/tzrule.h>
#include <unicode/tztrans.h>

namespace ormiva::UserCalendar {

namespace {

Surroundings& surroundings() {
    static Surroundings current;
    return current;
}

icu::UnicodeString toIcu(const QString& text) {
    return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<int32_t>(text.size())};
}

UDate toIcu(Instant instant) {
    return static_cast<UDate>(instant.time_since_epoch().count());
}

Instant fromIcu(UDate date) {
    return Instant(std::chrono::milliseconds(static_cast<qint64>(date)));
}

/// The zone of the surroundings, looked up once; null for that of the machine.
std::unique_ptr<icu::TimeZone>& namedZone() {
    static std::unique_ptr<icu::TimeZone> zone;
    return zone;
}

std::unique_ptr<icu::TimeZone> timeZone() {
    const auto& named = namedZone();
    return std::unique_ptr<icu::TimeZone>(named ? named->clone() : icu::TimeZone::createDefault());
}

/// A Gregorian calendar in the user's zone, standing at `instant`.
icu::GregorianCalendar calendarAt(Instant instant) {
    UErrorCode status = U_ZERO_ERROR;
    // Making one reads the locale's data, copying one doesn't.
    static const icu::GregorianCalendar prototype(icu::Locale::getRoot(), status);
    icu::GregorianCalendar calendar = prototype;
    calendar.adoptTimeZone(timeZone().release());
    calendar.setTime(toIcu(instant), status);
    calendar.setSkippedWallTimeOption(UCAL_WALLTIME_NEXT_VALID);
    calendar.setRepeatedWallTimeOption(UCAL_WALLTIME_FIRST);
    return calendar;
}

/// The user's locale, with the Gregorian calendar.
icu::Locale dateLocale() {
    icu::Locale locale = icu::Locale::createCanonical(localeName().toLatin1().constData());
    UErrorCode status = U_ZERO_ERROR;
    locale.setKeywordValue("calendar", "gregorian", status);
    return locale;
}

QString fromIcu(const icu::UnicodeString& text) {
    return QString(reinterpret_cast<const QChar*>(text.getBuffer()), text.length());
}

QString formatted(icu::DateFormat* ownedFormat, Instant instant) {
    const std::unique_ptr<icu::DateFormat> format(ownedFormat);
    if (!format)
        return {};
    format->adoptTimeZone(timeZone().release());
    icu::UnicodeString text;
    return fromIcu(format->format(toIcu(instant), text));
}

/// From the zone's own time to what the clocks show, in milliseconds.
qint64 offsetAt(const icu::TimeZone& zone, UDate instant) {
    int32_t raw = 0;
    int32_t saving = 0;
    UErrorCode status = U_ZERO_ERROR;
    zone.getOffset(instant, false, raw, saving, status);
    return raw + saving;
}

/// Whether a whole day was left out right before `instant`.
bool followsASkippedDay(Instant instant) {
    constexpr qint64 day = 86'400'000;
    const std::unique_ptr<icu::TimeZone> zone = timeZone();
    return offsetAt(*zone, toIcu(instant)) - offsetAt(*zone, toIcu(instant) - 1) >= day;
}

} // namespace

void setSurroundings(Surroundings replacement) {
    surroundings() = std::move(replacement);
    const QString& zone = surroundings().zone;
    namedZone().reset(zone.isEmpty() ? nullptr : icu::TimeZone::createTimeZone(toIcu(zone)));
}

Instant now() {
    if (surroundings().clock)
        return surroundings().clock();
    return std::chrono::time_point_cast<std::chrono::milliseconds>(std::chrono::system_clock::now());
}

QString localeName() {
    if (!surroundings().locale.isEmpty())
        return surroundings().locale;
    for (const char* variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        const QByteArray value = qgetenv(variable);
        if (value.isEmpty())
            continue;
        const QByteArray name = value.split('.').first();
        if (name != "C" && name != "POSIX")
            return QString::fromLatin1(name);
        break;
    }
    return QStringLiteral("en_US");
}

Fields fields(Instant instant) {
    const icu::GregorianCalendar calendar = calendarAt(instant);
    UErrorCode status = U_ZERO_ERROR;
    return {calendar.get(UCAL_EXTENDED_YEAR, status), calendar.get(UCAL_MONTH, status) + 1,
            calendar.get(UCAL_DATE, status),          calendar.get(UCAL_HOUR_OF_DAY, status),
            calendar.get(UCAL_MINUTE, status),        calendar.get(UCAL_SECOND, status)};
}

Instant noon(qint64 year, int month, int day) {
    icu::GregorianCalendar calendar = calendarAt({});
    calendar.setSkippedWallTimeOption(UCAL_WALLTIME_LAST); // Noon of a skipped day is noon of the next one.
    calendar.clear();
    calendar.set(UCAL_EXTENDED_YEAR, static_cast<int32_t>(std::clamp(year, -lastYear, lastYear)));
    calendar.set(UCAL_MONTH, month - 1);
    calendar.set(UCAL_DATE, day);
    calendar.set(UCAL_HOUR_OF_DAY, 12);
    UErrorCode status = U_ZERO_ERROR;
    return fromIcu(calendar.getTime(status));
}

Instant at(Instant day, int hour, int minute) {
    icu::GregorianCalendar calendar = calendarAt(day);
    UErrorCode status = U_ZERO_ERROR;
    calendar.set(UCAL_HOUR_OF_DAY, hour);
    calendar.set(UCAL_MINUTE, minute);
    calendar.set(UCAL_SECOND, 0);
    calendar.set(UCAL_MILLISECOND, 0);
    return fromIcu(calendar.getTime(status));
}

Instant startOfDay(Instant instant) {
    return at(instant, 0, 0);
}

std::optional<Instant> addingDays(Instant instant, qint64 days) {
    constexpr qint64 most = 366 * lastYear;
    if (days < -most || days > most)
        return std::nullopt;
    if (days == 0) // The later pass of an hour that came twice stays what it is.
        return instant;
    icu::GregorianCalendar calendar = calendarAt(instant);
    UErrorCode status = U_ZERO_ERROR;
    calendar.set(UCAL_JULIAN_DAY, calendar.get(UCAL_JULIAN_DAY, status) + static_cast<int32_t>(days));
    const int32_t year = calendar.get(UCAL_EXTENDED_YEAR, status);
    if (U_FAILURE(status) || year < -lastYear || year > lastYear)
        return std::nullopt;
    const Instant later = fromIcu(calendar.getTime(status));
    return followsASkippedDay(later) ? addingDays(instant, days + (days < 0 ? -1 : 1)) : later;
}

qint64 wholeDays(Instant from, Instant to) {
    icu::GregorianCalendar calendar = calendarAt(from);
    UErrorCode status = U_ZERO_ERROR;
    const int32_t days = calendar.fieldDifference(toIcu(to), UCAL_DATE, status);
    return U_FAILURE(status) ? 0 : days;
}

qint64 wallClock(Instant instant) {
    return instant.time_since_epoch().count() + offsetAt(*timeZone(), toIcu(instant));
}

QList<SkippedTime> skippedTimes(Instant from, Instant to) {
    const std::unique_ptr<icu::TimeZone> zone = timeZone();
    const auto* ruled = dynamic_cast<const icu::BasicTimeZone*>(zone.get());
    QList<SkippedTime> skipped;
    icu::TimeZoneTransition transition;
    UDate reached = toIcu(from);
    while (ruled && ruled->getNextTransition(reached, false, transition)) {
        reached = transition.getTime();
        if (reached > toIcu(to))
            break;
        const qint64 before = offsetAt(*zone, reached - 1);
        const qint64 after = offsetAt(*zone, reached);
        if (after > before) {
            const qint64 moment = static_cast<qint64>(reached);
            skipped.append({fromIcu(reached), moment + before, moment + after});
        }
    }
    return skipped;
}

Age age(Instant from, Instant to) {
    icu::GregorianCalendar calendar = calendarAt(from);
    UErrorCode status = U_ZERO_ERROR;
    // Each call moves the calendar on by what it counted, so the months are those beyond the years.
    const int32_t years = calendar.fieldDifference(toIcu(to), UCAL_YEAR, status);
    const int32_t months = calendar.fieldDifference(toIcu(to), UCAL_MONTH, status);
    return U_FAILURE(status) ? Age{} : Age{years, months};
}

int daysInMonth(qint64 year, int month) {
    icu::GregorianCalendar calendar = calendarAt(noon(year, month, 1));
    UErrorCode status = U_ZERO_ERROR;
    return calendar.getActualMaximum(UCAL_DATE, status);
}

int weekday(Instant instant) {
    icu::GregorianCalendar calendar = calendarAt(instant);
    UErrorCode status = U_ZERO_ERROR;
    return calendar.get(UCAL_DAY_OF_WEEK, status);
}

int firstWeekday() {
    UErrorCode status = U_ZERO_ERROR;
    const icu::GregorianCalendar calendar(dateLocale(), status);
    const UCalendarDaysOfWeek first = calendar.getFirstDayOfWeek(status);
    return U_FAILURE(status) ? UCAL_SUNDAY : first;
}

QStringList shortWeekdays() {
    UErrorCode status = U_ZERO_ERROR;
    const icu::DateFormatSymbols symbols(dateLocale(), status);
    int32_t count = 0;
    const icu::UnicodeString* names =
        symbols.getWeekdays(count, icu::DateFormatSymbols::FORMAT, icu::DateFormatSymbols::ABBREVIATED);
    QStringList days;
    for (int32_t day = UCAL_SUNDAY; day < count; ++day) // The first entry is not used.
        days.append(fromIcu(names[day]));
    return days;
}

QStringList dayNumbers() {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::NumberFormat> format(icu::NumberFormat::createInstance(dateLocale(), status));
    QStringList numbers;
    for (int32_t day = 1; day <= 31; ++day) {
        icu::UnicodeString text;
        numbers.append(format ? fromIcu(format->format(day, text)) : QString::number(day));
    }
    return numbers;
}

QString monthAndYear(Instant instant) {
    UErrorCode status = U_ZERO_ERROR;
    return formatted(icu::DateFormat::createInstanceForSkeleton("yMMMM", dateLocale(), status), instant);
}

QString mediumDate(Instant instant) {
    return formatted(icu::DateFormat::createDateInstance(icu::DateFormat::kMedium, dateLocale()), instant);
}

QString shortTime(Instant instant) {
    return formatted(icu::DateFormat::createTimeInstance(icu::DateFormat::kShort, dateLocale()), instant);
}

} // namespace ormiva::UserCalendar
