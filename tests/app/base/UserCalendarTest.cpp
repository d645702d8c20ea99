#include "UserCalendar.h"

#include "FixedCalendar.h"
#include "Printers.h"
#include "ScopedVariable.h"

#include <QList>

namespace ormiva {

namespace UserCalendar {

bool operator==(const Fields& a, const Fields& b) {
    return a.year == b.year && a.month == b.month && a.day == b.day && a.hour == b.hour &&
           a.minute == b.minute && a.second == b.second;
}

void PrintTo(const Fields& f, std::ostream* out) {
    *out << f.year << '-' << f.month << '-' << f.day << ' ' << f.hour << ':' << f.minute << ':' << f.second;
}

bool operator==(const Age& a, const Age& b) {
    return a.years == b.years && a.months == b.months;
}

void PrintTo(const Age& age, std::ostream* out) {
    *out << age.years << " years " << age.months << " months";
}

} // namespace UserCalendar

namespace {

using testing::FixedCalendar;
using testing::ScopedVariable;
using testing::utc;
using UserCalendar::Age;
using UserCalendar::Fields;

const QString berlin = QStringLiteral("Europe/Berlin");

TEST(UserCalendar, GivesTheInjectedMoment) {
    const FixedCalendar calendar(utc(2026, 3, 7, 9, 30, 15));
    EXPECT_EQ(UserCalendar::now(), utc(2026, 3, 7, 9, 30, 15));
}

TEST(UserCalendar, GivesTheMachinesClockWhenNoneIsInjected) {
    const auto before = std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now());
    const Instant now = UserCalendar::now();
    EXPECT_GE(now, before);
    EXPECT_LE(now, std::chrono::system_clock::now());
}

TEST(UserCalendar, GivesTheFieldsInTheUsersZone) {
    const Instant instant = utc(2025, 12, 31, 23, 30, 5);
    const QList<std::pair<QString, Fields>> expected = {
        {QStringLiteral("UTC"), {2025, 12, 31, 23, 30, 5}},
        {berlin, {2026, 1, 1, 0, 30, 5}},
        {QStringLiteral("America/Sao_Paulo"), {2025, 12, 31, 20, 30, 5}},
        {QStringLiteral("Australia/Lord_Howe"), {2026, 1, 1, 10, 30, 5}},
        {QStringLiteral("Asia/Kathmandu"), {2026, 1, 1, 5, 15, 5}},
    };
    for (const auto& [zone, fields] : expected) {
        const FixedCalendar calendar(instant, zone);
        EXPECT_EQ(UserCalendar::fields(instant), fields) << zone.toStdString();
    }
}

TEST(UserCalendar, UsesTheZoneOfTheMachineWhenNoneIsInjected) {
    UserCalendar::setSurroundings({});
    EXPECT_EQ(UserCalendar::fields(utc(2026, 3, 7, 9, 30)), (Fields{2026, 3, 7, 9, 30, 0}));
}

TEST(UserCalendar, IsGregorianInEveryLocale) {
    for (const char* locale : {"th_TH", "fa_IR", "ar_SA", "de_DE", "ja_JP@calendar=japanese", "he_IL"}) {
        const FixedCalendar calendar(utc(2026, 3, 7), QStringLiteral("UTC"), QString::fromLatin1(locale));
        EXPECT_EQ(UserCalendar::fields(utc(2026, 3, 7)), (Fields{2026, 3, 7, 12, 0, 0})) << locale;
        EXPECT_EQ(UserCalendar::noon(2026, 3, 7), utc(2026, 3, 7)) << locale;
    }
}

TEST(UserCalendar, WritesMediumDatesInTheLocaleWithTheGregorianYear) {
    const QList<std::pair<QString, QString>> expected = {
        {QStringLiteral("en_US"), QStringLiteral("Mar 7, 2026")},
        {QStringLiteral("en_GB"), QStringLiteral("7 Mar 2026")},
        {QStringLiteral("de_DE"), QStringLiteral("07.03.2026")},
        {QStringLiteral("th_TH"), QStringLiteral("7 มี.ค. 2026")},
        {QStringLiteral("fa_IR"), QStringLiteral("۷ مارس ۲۰۲۶")},
        {QStringLiteral("ar_SA"), QStringLiteral("٠٧\u200f/٠٣\u200f/٢٠٢٦")},
        {QStringLiteral("ja_JP@calendar=japanese"), QStringLiteral("2026/03/07")},
    };
    for (const auto& [locale, text] : expected) {
        const FixedCalendar calendar(utc(2026, 1, 1), QStringLiteral("UTC"), locale);
        EXPECT_EQ(UserCalendar::mediumDate(utc(2026, 3, 7)), text) << locale.toStdString();
    }
}

TEST(UserCalendar, WritesMonthsInTheLocaleWithTheGregorianYear) {
    const QList<std::pair<QString, QString>> expected = {
        {QStringLiteral("en_US"), QStringLiteral("March 2026")},
        {QStringLiteral("de_DE"), QStringLiteral("März 2026")},
        {QStringLiteral("pl_PL"), QStringLiteral("marzec 2026")}, // Not the "marca" of a date.
        {QStringLiteral("th_TH"), QStringLiteral("มีนาคม 2026")},
        {QStringLiteral("fa_IR"), QStringLiteral("مارس ۲۰۲۶")},
        {QStringLiteral("ja_JP@calendar=japanese"), QStringLiteral("2026年3月")},
    };
    for (const auto& [locale, text] : expected) {
        const FixedCalendar calendar(utc(2026, 1, 1), QStringLiteral("UTC"), locale);
        EXPECT_EQ(UserCalendar::monthAndYear(utc(2026, 3, 7)), text) << locale.toStdString();
    }
}

TEST(UserCalendar, NumbersTheDaysInTheDigitsOfTheLocale) {
    const auto numbers = [](const QString& locale) {
        const FixedCalendar calendar(utc(2026, 1, 1), QStringLiteral("UTC"), locale);
        return UserCalendar::dayNumbers();
    };
    const QStringList english = numbers(QStringLiteral("en_US"));
    ASSERT_EQ(english.size(), 31);
    for (int day = 1; day <= 31; ++day)
        EXPECT_EQ(english.at(day - 1), QString::number(day));
    EXPECT_EQ(numbers(QStringLiteral("fa_IR")).at(16), QStringLiteral("۱۷"));
    EXPECT_EQ(numbers(QStringLiteral("ja_JP")).at(16), QStringLiteral("17"));
}

TEST(UserCalendar, WritesTheDateThatItIsInTheUsersZone) {
    const FixedCalendar calendar(utc(2026, 1, 1), QStringLiteral("Pacific/Kiritimati"));
    EXPECT_EQ(UserCalendar::mediumDate(utc(2026, 3, 7, 12)), QStringLiteral("Mar 8, 2026"));
}

TEST(UserCalendar, TakesTheLocaleOfDatesFromTheEnvironment) {
    struct Case {
        const char* all;
        const char* time;
        const char* lang;
        QString expected;
    };
    const QList<Case> cases = {
        {"de_AT.UTF-8", "fr_FR.UTF-8", "it_IT.UTF-8", QStringLiteral("de_AT")},
        {"", "fr_FR.UTF-8", "it_IT.UTF-8", QStringLiteral("fr_FR")},
        {"", "", "it_IT", QStringLiteral("it_IT")},
        {"", "", "", QStringLiteral("en_US")},
        {"C.UTF-8", "fr_FR.UTF-8", "it_IT.UTF-8", QStringLiteral("en_US")},
        {"POSIX", "", "", QStringLiteral("en_US")},
        {"C", "", "", QStringLiteral("en_US")},
    };
    UserCalendar::setSurroundings({});
    for (const Case& c : cases) {
        const ScopedVariable all("LC_ALL", QByteArray(c.all));
        const ScopedVariable time("LC_TIME", QByteArray(c.time));
        const ScopedVariable lang("LANG", QByteArray(c.lang));
        EXPECT_EQ(UserCalendar::localeName(), c.expected) << c.all << ' ' << c.time << ' ' << c.lang;
    }
}

TEST(UserCalendar, FindsNoonOnEitherSideOfAChangeOfTheClocks) {
    const FixedCalendar calendar(utc(2026, 1, 1), berlin);
    EXPECT_EQ(UserCalendar::noon(2026, 3, 28), utc(2026, 3, 28, 11));
    EXPECT_EQ(UserCalendar::noon(2026, 3, 29), utc(2026, 3, 29, 10));
    EXPECT_EQ(UserCalendar::noon(2026, 10, 24), utc(2026, 10, 24, 10));
    EXPECT_EQ(UserCalendar::noon(2026, 10, 25), utc(2026, 10, 25, 11));
}

TEST(UserCalendar, NormalisesADayThatItsMonthDoesNotHave) {
    const FixedCalendar calendar(utc(2026, 1, 1));
    EXPECT_EQ(UserCalendar::noon(2026, 2, 31), utc(2026, 3, 3));
    EXPECT_EQ(UserCalendar::noon(2024, 2, 30), utc(2024, 3, 1));
    EXPECT_EQ(UserCalendar::noon(2026, 4, 31), utc(2026, 5, 1));
}

/// Adds a day to each of `from` noon by noon, and measures the way back.
void expectDaysOf24HoursOrNot(const QString& zone, int year, int month, int day, int days) {
    const FixedCalendar calendar(utc(year, month, day), zone);
    const Instant start = UserCalendar::noon(year, month, day);
    const auto expected = std::chrono::sys_days(std::chrono::year(year) / month / day);
    for (int n = -days; n <= days; ++n) {
        const std::chrono::year_month_day there(expected + std::chrono::days(n));
        const auto moved = UserCalendar::addingDays(start, n);
        ASSERT_TRUE(moved.has_value());
        EXPECT_EQ(
            UserCalendar::fields(*moved),
            (Fields{static_cast<int>(there.year()), static_cast<int>(static_cast<unsigned>(there.month())),
                    static_cast<int>(static_cast<unsigned>(there.day())), 12, 0, 0}));
        EXPECT_EQ(UserCalendar::wholeDays(start, *moved), n);
        EXPECT_EQ(UserCalendar::wholeDays(*moved, start), -n);
    }
}

TEST(UserCalendar, CountsDaysAcrossTheChangesOfTheClocks) {
    expectDaysOf24HoursOrNot(berlin, 2026, 3, 29, 3);
    expectDaysOf24HoursOrNot(berlin, 2026, 10, 25, 3);
    // The clocks change at midnight, so that a day begins at one o'clock.
    expectDaysOf24HoursOrNot(QStringLiteral("America/Sao_Paulo"), 2018, 11, 4, 3);
    expectDaysOf24HoursOrNot(QStringLiteral("America/Sao_Paulo"), 2018, 2, 18, 3);
    // By half an hour.
    expectDaysOf24HoursOrNot(QStringLiteral("Australia/Lord_Howe"), 2026, 4, 5, 3);
    expectDaysOf24HoursOrNot(QStringLiteral("Australia/Lord_Howe"), 2026, 10, 4, 3);
    expectDaysOf24HoursOrNot(QStringLiteral("Pacific/Apia"), 2012, 4, 1, 3);
}

TEST(UserCalendar, PassesOverADayThatAZoneSkipped) {
    const FixedCalendar calendar(utc(2011, 12, 1), QStringLiteral("Pacific/Apia"));
    const Instant before = UserCalendar::noon(2011, 12, 29);
    const Instant after = UserCalendar::noon(2011, 12, 31);
    EXPECT_EQ(UserCalendar::addingDays(before, 1), after);
    EXPECT_EQ(UserCalendar::addingDays(after, -1), before);
    EXPECT_EQ(UserCalendar::wholeDays(before, after), 1);
    EXPECT_EQ(UserCalendar::wholeDays(after, before), -1);
    EXPECT_EQ(UserCalendar::noon(2011, 12, 30), after);
}

TEST(UserCalendar, CountsOnlyWholeDays) {
    const FixedCalendar calendar(utc(2026, 1, 1));
    EXPECT_EQ(UserCalendar::wholeDays(utc(2026, 3, 7, 12), utc(2026, 3, 8, 11, 59)), 0);
    EXPECT_EQ(UserCalendar::wholeDays(utc(2026, 3, 7, 12), utc(2026, 3, 8, 12)), 1);
    EXPECT_EQ(UserCalendar::wholeDays(utc(2026, 3, 8, 11), utc(2026, 3, 7, 12)), 0);
    EXPECT_EQ(UserCalendar::wholeDays(utc(2024, 1, 1), utc(2025, 1, 1)), 366);
}

TEST(UserCalendar, ClampsYearsThatAreTooFarOut) {
    const FixedCalendar calendar(utc(2026, 1, 1));
    EXPECT_EQ(UserCalendar::fields(UserCalendar::noon(999999999, 2, 3)), (Fields{2000000, 2, 3, 12, 0, 0}));
    EXPECT_EQ(UserCalendar::fields(UserCalendar::noon(-999999999, 2, 3)), (Fields{-2000000, 2, 3, 12, 0, 0}));
    constexpr qint64 most = std::numeric_limits<qint64>::max();
    EXPECT_EQ(UserCalendar::fields(UserCalendar::noon(most, 12, 31)), (Fields{2000000, 12, 31, 12, 0, 0}));
}

TEST(UserCalendar, CountsFromOneEndOfItsYearsToTheOther) {
    const FixedCalendar calendar(utc(2026, 1, 1));
    const Instant first = UserCalendar::noon(-UserCalendar::lastYear, 1, 1);
    const Instant last = UserCalendar::noon(UserCalendar::lastYear, 12, 31);
    const qint64 days = (last - first) / std::chrono::days(1);
    EXPECT_GT(days, qint64(730) * UserCalendar::lastYear);
    EXPECT_EQ(UserCalendar::wholeDays(first, last), days);
    EXPECT_EQ(UserCalendar::wholeDays(last, first), -days);
    EXPECT_EQ(UserCalendar::age(first, last), (Age{4000000, 11}));
}

TEST(UserCalendar, GoesNowhereBeyondItsYears) {
    const FixedCalendar calendar(utc(2026, 1, 1));
    constexpr qint64 most = std::numeric_limits<qint64>::max();
    const Instant last = UserCalendar::noon(UserCalendar::lastYear, 12, 31);
    EXPECT_EQ(UserCalendar::addingDays(last, 1), std::nullopt);
    EXPECT_EQ(UserCalendar::addingDays(last, 0), last);
    EXPECT_EQ(UserCalendar::addingDays(UserCalendar::noon(-UserCalendar::lastYear, 1, 1), -1), std::nullopt);
    EXPECT_EQ(UserCalendar::addingDays(utc(2026, 1, 1), most), std::nullopt);
    EXPECT_EQ(UserCalendar::addingDays(utc(2026, 1, 1), -most), std::nullopt);
    EXPECT_EQ(UserCalendar::addingDays(utc(2026, 1, 1), 4'294'967'297), std::nullopt);
}

TEST(UserCalendar, CountsYearsAndTheMonthsBeyondThem) {
    const FixedCalendar calendar(utc(2026, 1, 1));
    const auto age = [](Instant from, Instant to) { return UserCalendar::age(from, to); };
    EXPECT_EQ(age(utc(2023, 1, 7), utc(2026, 3, 7)), (Age{3, 2}));
    EXPECT_EQ(age(utc(2023, 1, 7), utc(2026, 3, 7, 11, 59)), (Age{3, 1}));
    EXPECT_EQ(age(utc(2025, 3, 7), utc(2026, 3, 7)), (Age{1, 0}));
    EXPECT_EQ(age(utc(2025, 3, 7), utc(2026, 3, 6)), (Age{0, 11}));
    EXPECT_EQ(age(utc(2026, 3, 7), utc(2026, 3, 7)), (Age{0, 0}));
}

TEST(UserCalendar, CountsMonthsFromTheLastDaysOfAMonth) {
    const FixedCalendar calendar(utc(2026, 1, 1));
    const auto age = [](Instant from, Instant to) { return UserCalendar::age(from, to); };
    EXPECT_EQ(age(utc(2025, 1, 29), utc(2025, 2, 27)), (Age{0, 0}));
    EXPECT_EQ(age(utc(2025, 1, 29), utc(2025, 2, 28)), (Age{0, 1}));
    EXPECT_EQ(age(utc(2025, 1, 30), utc(2025, 2, 28)), (Age{0, 1}));
    EXPECT_EQ(age(utc(2025, 1, 31), utc(2025, 2, 27)), (Age{0, 0}));
    EXPECT_EQ(age(utc(2025, 1, 31), utc(2025, 2, 28)), (Age{0, 1}));
    EXPECT_EQ(age(utc(2025, 1, 31), utc(2025, 3, 30)), (Age{0, 1}));
    EXPECT_EQ(age(utc(2025, 1, 31), utc(2025, 3, 31)), (Age{0, 2}));
    EXPECT_EQ(age(utc(2025, 1, 31), utc(2025, 4, 30)), (Age{0, 3}));
}

TEST(UserCalendar, CountsYearsFromALeapDay) {
    const FixedCalendar calendar(utc(2026, 1, 1));
    const auto age = [](Instant to) { return UserCalendar::age(utc(2020, 2, 29), to); };
    EXPECT_EQ(age(utc(2021, 2, 27)), (Age{0, 11}));
    EXPECT_EQ(age(utc(2021, 2, 28)), (Age{1, 0}));
    EXPECT_EQ(age(utc(2023, 3, 1)), (Age{3, 0}));
    EXPECT_EQ(age(utc(2024, 2, 27)), (Age{3, 11}));
    // The third year was full on a February 28, and twelve months later it is one again.
    EXPECT_EQ(age(utc(2024, 2, 28)), (Age{3, 12}));
    EXPECT_EQ(age(utc(2024, 2, 29)), (Age{4, 0}));
}

TEST(UserCalendar, CountsBackwardsToAnEarlierMoment) {
    const FixedCalendar calendar(utc(2026, 1, 1));
    EXPECT_EQ(UserCalendar::age(utc(2026, 5, 1), utc(2025, 3, 31)), (Age{-1, -1}));
}

} // namespace
} // namespace ormiva
