#include "UserCalendar.h"

#include <QByteArray>
#include <QList>

#include <algorithm>
#include <limits>
#include <memory>
#include <unicode/datefmt.h>
#include <unicode/gregocal.h>
#include <unicode/timezone.h>

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

std::unique_ptr<icu::TimeZone> timeZone() {
    const QString& name = surroundings().zone;
    return std::unique_ptr<icu::TimeZone>(name.isEmpty() ? icu::TimeZone::createDefault()
                                                         : icu::TimeZone::createTimeZone(toIcu(name)));
}

/// A Gregorian calendar in the user's zone, standing at `instant`.
icu::GregorianCalendar calendarAt(Instant instant) {
    UErrorCode status = U_ZERO_ERROR;
    icu::GregorianCalendar calendar(timeZone().release(), icu::Locale::getRoot(), status);
    calendar.setTime(toIcu(instant), status);
    return calendar;
}

} // namespace

void setSurroundings(Surroundings replacement) {
    surroundings() = std::move(replacement);
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
    calendar.clear();
    calendar.set(UCAL_EXTENDED_YEAR, static_cast<int32_t>(std::clamp(year, -lastYear, lastYear)));
    calendar.set(UCAL_MONTH, month - 1);
    calendar.set(UCAL_DATE, day);
    calendar.set(UCAL_HOUR_OF_DAY, 12);
    UErrorCode status = U_ZERO_ERROR;
    return fromIcu(calendar.getTime(status));
}

std::optional<Instant> addingDays(Instant instant, qint64 days) {
    constexpr qint64 most = 366 * lastYear;
    if (days < -most || days > most)
        return std::nullopt;
    icu::GregorianCalendar calendar = calendarAt(instant);
    UErrorCode status = U_ZERO_ERROR;
    calendar.add(UCAL_DATE, static_cast<int32_t>(days), status);
    const int32_t year = calendar.get(UCAL_EXTENDED_YEAR, status);
    if (U_FAILURE(status) || year < -lastYear || year > lastYear)
        return std::nullopt;
    return fromIcu(calendar.getTime(status));
}

qint64 wholeDays(Instant from, Instant to) {
    icu::GregorianCalendar calendar = calendarAt(from);
    UErrorCode status = U_ZERO_ERROR;
    const int32_t days = calendar.fieldDifference(toIcu(to), UCAL_DATE, status);
    return U_FAILURE(status) ? 0 : days;
}

Age age(Instant from, Instant to) {
    icu::GregorianCalendar calendar = calendarAt(from);
    UErrorCode status = U_ZERO_ERROR;
    // Each call moves the calendar on by what it counted, so the months are those beyond the years.
    const int32_t years = calendar.fieldDifference(toIcu(to), UCAL_YEAR, status);
    const int32_t months = calendar.fieldDifference(toIcu(to), UCAL_MONTH, status);
    return U_FAILURE(status) ? Age{} : Age{years, months};
}

QString mediumDate(Instant instant) {
    icu::Locale locale = icu::Locale::createCanonical(localeName().toLatin1().constData());
    UErrorCode status = U_ZERO_ERROR;
    locale.setKeywordValue("calendar", "gregorian", status);
    const std::unique_ptr<icu::DateFormat> format(
        icu::DateFormat::createDateInstance(icu::DateFormat::kMedium, locale));
    if (!format || U_FAILURE(status))
        return {};
    format->adoptTimeZone(timeZone().release());
    icu::UnicodeString text;
    format->format(toIcu(instant), text);
    return QString(reinterpret_cast<const QChar*>(text.getBuffer()), text.length());
}

} // namespace ormiva::UserCalendar
