#include "OMDay.h"

#include "FixedCalendar.h"
#include "MadeStore.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>
#include <limits>
#include <random>

namespace ormiva {
namespace {

using testing::FixedCalendar;
using testing::utc;

const QString berlin = QStringLiteral("Europe/Berlin");
constexpr qint64 most = std::numeric_limits<qint64>::max();

QJsonValue json(const QByteArray& text) {
    return QJsonDocument::fromJson(text).object();
}

TEST(OMDay, WritesIsoWithPaddedNumbers) {
    EXPECT_EQ((OMDay{2026, 3, 7}).iso(), u"2026-03-07"_qs);
    EXPECT_EQ((OMDay{2024, 12, 31}).iso(), u"2024-12-31"_qs);
    EXPECT_EQ((OMDay{999, 1, 1}).iso(), u"0999-01-01"_qs);
    EXPECT_EQ((OMDay{0, 1, 1}).iso(), u"0000-01-01"_qs);
    EXPECT_EQ((OMDay{12345, 1, 1}).iso(), u"12345-01-01"_qs);
    EXPECT_EQ((OMDay{-5, 1, 1}).iso(), u"-005-01-01"_qs);
    EXPECT_EQ((OMDay{most, 1, 1}).iso(), u"9223372036854775807-01-01"_qs);
}

TEST(OMDay, WritesIsoInAsciiDigitsInEveryLocale) {
    for (const char* locale : {"fa_IR", "ar_SA", "th_TH", "de_DE"}) {
        const FixedCalendar calendar(utc(2026, 3, 7), u"UTC"_qs, QString::fromLatin1(locale));
        EXPECT_EQ(OMDay::today().iso(), u"2026-03-07"_qs) << locale;
    }
}

TEST(OMDay, ReadsIso) {
    const QList<std::pair<QString, OMDay>> expected = {
        {u"2024-03-07"_qs, {2024, 3, 7}},
        {u"2024-2-3"_qs, {2024, 2, 3}},
        {u"2024-02-31"_qs, {2024, 2, 31}},
        {u"2025-02-31"_qs, {2025, 2, 31}},
        {u"abc-2024-02-03"_qs, {2024, 2, 3}},
        {u"2024-02-03-x"_qs, {2024, 2, 3}},
        {u"2024- 5-02-03"_qs, {2024, 2, 3}},
        {u"--2024--02--03--"_qs, {2024, 2, 3}},
        {u"-5-01-02"_qs, {5, 1, 2}},
        {u"0-1-1"_qs, {0, 1, 1}},
        {u"999999999-12-31"_qs, {999999999, 12, 31}},
        {u"2024-+2-03"_qs, {2024, 2, 3}},
        {u"9223372036854775807-01-01"_qs, {most, 1, 1}},
    };
    for (const auto& [text, day] : expected)
        EXPECT_EQ(OMDay::fromIso(text), day) << text.toStdString();
}

TEST(OMDay, IsAbsentForWhatIsNotThreeNumbersInRange) {
    const QStringList texts = {
        QString(),
        u""_qs,
        u"-"_qs,
        u"---"_qs,
        u"2024"_qs,
        u"2024-02"_qs,
        u"20240203"_qs,
        u"2024-02-03-04"_qs,
        u"2024-13-01"_qs,
        u"2024-00-10"_qs,
        u"2024-01-00"_qs,
        u"2024-01-32"_qs,
        u"abc"_qs,
        u"a-b-c"_qs,
        u"2024/02/03"_qs,
        u"03.02.2024"_qs,
        u"2024-02-3rd"_qs,
        u" 2024-02-03"_qs,
        u"2024-02-03 "_qs,
        u"2024-02-03T10:00"_qs,
        u"\u0662\u0660\u0662\u0664-02-03"_qs,
        u"9223372036854775808-01-01"_qs,
        u"2024-4294967298-03"_qs,
        u"2024\u201302\u201303"_qs,
    };
    for (const QString& text : texts)
        EXPECT_EQ(OMDay::fromIso(text), std::nullopt) << '"' << text.toStdString() << '"';
}

TEST(OMDay, ReadsBackWhatItWrites) {
    std::mt19937_64 random(5);
    for (int i = 0; i < 5000; ++i) {
        const auto year = static_cast<qint64>(i % 2 ? random() % 10000 : random() >> 1);
        const OMDay day{year, static_cast<int>(random() % 12) + 1, static_cast<int>(random() % 31) + 1};
        ASSERT_EQ(OMDay::fromIso(day.iso()), day);
        ASSERT_EQ(OMDay::fromJson(json(OMDay{year % 100000, day.m, day.d}.toJson())),
                  (OMDay{year % 100000, day.m, day.d}));
    }
}

TEST(OMDay, WritesJsonInTheOrderOfItsFields) {
    EXPECT_EQ((OMDay{2026, 3, 7}).toJson(), QByteArray(R"({"y":2026,"m":3,"d":7})"));
    EXPECT_EQ((OMDay{-1, 12, 31}).toJson(), QByteArray(R"({"y":-1,"m":12,"d":31})"));
}

TEST(OMDay, ReadsJson) {
    EXPECT_EQ(OMDay::fromJson(json(R"({"y":2026,"m":3,"d":7})")), (OMDay{2026, 3, 7}));
    EXPECT_EQ(OMDay::fromJson(json(R"({"d":7,"more":null,"m":3,"y":2026.0})")), (OMDay{2026, 3, 7}));
    EXPECT_EQ(OMDay::fromJson(json(R"({"y":9007199254740993,"m":1,"d":1})")),
              (OMDay{9007199254740993, 1, 1}));
}

TEST(OMDay, IsAbsentForOtherJson) {
    for (const char* text : {
             "{}",
             R"({"y":2026,"m":3})",
             R"({"y":2026,"d":3})",
             R"({"m":3,"d":7})",
             R"({"y":"2026","m":3,"d":7})",
             R"({"y":2026.5,"m":3,"d":7})",
             R"({"y":null,"m":3,"d":7})",
             R"({"y":2026,"m":true,"d":7})",
             R"({"y":1e300,"m":3,"d":7})",
             R"({"y":-1e300,"m":3,"d":7})",
             R"({"y":9223372036854775808,"m":3,"d":7})",
             R"({"y":2026,"m":13,"d":7})",
             R"({"y":2026,"m":3,"d":0})",
             R"({"Y":2026,"M":3,"D":7})",
         })
        EXPECT_EQ(OMDay::fromJson(json(text)), std::nullopt) << text;
    EXPECT_EQ(OMDay::fromJson(QJsonValue(u"2026-03-07"_qs)), std::nullopt);
    EXPECT_EQ(OMDay::fromJson(QJsonValue()), std::nullopt);
}

TEST(OMDay, IsTheDayInTheUsersZone) {
    const Instant instant = utc(2025, 12, 31, 23, 30);
    const QList<std::pair<QString, OMDay>> expected = {
        {u"UTC"_qs, {2025, 12, 31}},
        {berlin, {2026, 1, 1}},
        {u"America/Sao_Paulo"_qs, {2025, 12, 31}},
        {u"Pacific/Apia"_qs, {2026, 1, 1}},
    };
    for (const auto& [zone, day] : expected) {
        const FixedCalendar calendar(instant, zone);
        EXPECT_EQ(OMDay::of(instant), day) << zone.toStdString();
        EXPECT_EQ(OMDay::today(), day) << zone.toStdString();
    }
}

TEST(OMDay, ComputesTodayAfresh) {
    Instant now = utc(2026, 3, 7, 23, 59, 59);
    UserCalendar::setSurroundings({[&now] { return now; }, u"UTC"_qs, {}});
    EXPECT_EQ(OMDay::today(), (OMDay{2026, 3, 7}));
    now += std::chrono::seconds(1);
    EXPECT_EQ(OMDay::today(), (OMDay{2026, 3, 8}));
    UserCalendar::setSurroundings({});
}

TEST(OMDay, IsGregorianInEveryLocale) {
    for (const char* locale : {"th_TH", "fa_IR", "ar_SA", "de_DE"}) {
        const FixedCalendar calendar(utc(2026, 3, 7), u"UTC"_qs, QString::fromLatin1(locale));
        EXPECT_EQ(OMDay::today(), (OMDay{2026, 3, 7})) << locale;
        EXPECT_EQ((OMDay{2026, 3, 7}).date(), utc(2026, 3, 7)) << locale;
    }
}

TEST(OMDay, IsNoonAsAMoment) {
    const FixedCalendar calendar(utc(2026, 1, 1), berlin);
    EXPECT_EQ((OMDay{2026, 1, 15}).date(), utc(2026, 1, 15, 11));
    EXPECT_EQ((OMDay{2026, 7, 15}).date(), utc(2026, 7, 15, 10));
    EXPECT_EQ((OMDay{2026, 2, 31}).date(), utc(2026, 3, 3, 11));
}

TEST(OMDay, IsOrderedByYearThenMonthThenDay) {
    const QList<OMDay> ordered = {{-1, 12, 31}, {999, 12, 31}, {2024, 12, 31}, {2025, 1, 31},
                                  {2025, 2, 1}, {2025, 2, 2},  {2025, 10, 1},  {2026, 1, 1}};
    QList<OMDay> shuffled = ordered;
    std::shuffle(shuffled.begin(), shuffled.end(), std::mt19937(6));
    ASSERT_NE(shuffled, ordered);
    std::sort(shuffled.begin(), shuffled.end());
    EXPECT_EQ(shuffled, ordered);
}

TEST(OMDay, IsEqualAndHashedByAllThreeFields) {
    const OMDay day{2026, 3, 7};
    EXPECT_EQ(day, (OMDay{2026, 3, 7}));
    EXPECT_NE(day, (OMDay{2025, 3, 7}));
    EXPECT_NE(day, (OMDay{2026, 4, 7}));
    EXPECT_NE(day, (OMDay{2026, 3, 8}));
    EXPECT_EQ(qHash(day, 1), qHash(OMDay{2026, 3, 7}, 1));
    EXPECT_EQ(QSet<OMDay>({day, {2026, 3, 7}, {2026, 3, 8}}).size(), 2);
}

TEST(OMDay, AddsDays) {
    const FixedCalendar calendar(utc(2026, 1, 1), berlin);
    EXPECT_EQ((OMDay{2025, 12, 31}).adding(1), (OMDay{2026, 1, 1}));
    EXPECT_EQ((OMDay{2024, 2, 28}).adding(1), (OMDay{2024, 2, 29}));
    EXPECT_EQ((OMDay{2025, 2, 28}).adding(1), (OMDay{2025, 3, 1}));
    EXPECT_EQ((OMDay{2026, 1, 1}).adding(-1), (OMDay{2025, 12, 31}));
    EXPECT_EQ((OMDay{2026, 3, 7}).adding(0), (OMDay{2026, 3, 7}));
    EXPECT_EQ((OMDay{2026, 3, 7}).adding(365), (OMDay{2027, 3, 7}));
    EXPECT_EQ((OMDay{2026, 2, 31}).adding(1), (OMDay{2026, 3, 4}));
}

TEST(OMDay, CountsDays) {
    const FixedCalendar calendar(utc(2026, 1, 1), berlin);
    EXPECT_EQ((OMDay{2026, 3, 7}).daysTo({2026, 3, 7}), 0);
    EXPECT_EQ((OMDay{2026, 3, 7}).daysTo({2026, 3, 9}), 2);
    EXPECT_EQ((OMDay{2026, 3, 9}).daysTo({2026, 3, 7}), -2);
    EXPECT_EQ((OMDay{2024, 1, 1}).daysTo({2025, 1, 1}), 366);
    EXPECT_EQ((OMDay{2026, 2, 31}).daysTo({2026, 3, 3}), 0);
}

TEST(OMDay, CountsOneDayAcrossTheNightOnWhichTheClocksChange) {
    const QList<std::tuple<QString, OMDay, OMDay>> nights = {
        {berlin, {2026, 3, 28}, {2026, 3, 29}},
        {berlin, {2026, 10, 24}, {2026, 10, 25}},
        {u"America/Sao_Paulo"_qs, {2018, 11, 3}, {2018, 11, 4}},
        {u"America/Sao_Paulo"_qs, {2018, 2, 17}, {2018, 2, 18}},
        {u"Australia/Lord_Howe"_qs, {2026, 4, 4}, {2026, 4, 5}},
        {u"Australia/Lord_Howe"_qs, {2026, 10, 3}, {2026, 10, 4}},
        {u"Pacific/Apia"_qs, {2011, 12, 29}, {2011, 12, 31}},
    };
    for (const auto& [zone, before, after] : nights) {
        const FixedCalendar calendar(utc(2026, 1, 1), zone);
        EXPECT_EQ(before.daysTo(after), 1) << zone.toStdString();
        EXPECT_EQ(after.daysTo(before), -1) << zone.toStdString();
        EXPECT_EQ(before.adding(1), after) << zone.toStdString();
        EXPECT_EQ(after.adding(-1), before) << zone.toStdString();
    }
}

TEST(OMDay, CountsTheDaysThatWereAdded) {
    std::mt19937 random(7);
    for (const QString& zone : {u"UTC"_qs, berlin, u"America/Sao_Paulo"_qs, u"Australia/Lord_Howe"_qs}) {
        const FixedCalendar calendar(utc(2026, 1, 1), zone);
        for (int i = 0; i < 200; ++i) {
            const OMDay day{1900 + static_cast<int>(random() % 200), static_cast<int>(random() % 12) + 1,
                            static_cast<int>(random() % 28) + 1};
            const int count = static_cast<int>(random() % 20000) - 10000;
            ASSERT_EQ(day.daysTo(day.adding(count)), count)
                << zone.toStdString() << ' ' << day.iso().toStdString();
            ASSERT_EQ(day.adding(count).adding(-count), day);
        }
    }
}

TEST(OMDay, ShowsItselfInTheUsersLocale) {
    const QList<std::pair<QString, QString>> expected = {
        {u"en_US"_qs, u"Mar 7, 2026"_qs},
        {u"de_DE"_qs, u"07.03.2026"_qs},
        {u"th_TH"_qs, u"7 มี.ค. 2026"_qs},
        {u"fa_IR"_qs, u"۷ مارس ۲۰۲۶"_qs},
        {u"ar_SA"_qs, u"٠٧\u200f/٠٣\u200f/٢٠٢٦"_qs},
    };
    for (const auto& [locale, text] : expected) {
        const FixedCalendar calendar(utc(2026, 1, 1), berlin, locale);
        EXPECT_EQ((OMDay{2026, 3, 7}).display(), text) << locale.toStdString();
    }
}

TEST(OMDay, FindsTheFirstOfTheMonth) {
    EXPECT_EQ((OMDay{2026, 2, 31}).firstOfMonth(), (OMDay{2026, 2, 1}));
    EXPECT_EQ((OMDay{2026, 3, 1}).firstOfMonth(), (OMDay{2026, 3, 1}));
}

TEST(OMDay, StaysUsableFarOutsideTheYearsOfTheCalendar) {
    const FixedCalendar calendar(utc(2026, 3, 7));
    const OMDay today = OMDay::today();
    for (const OMDay& far : {OMDay{999999999, 12, 31}, OMDay{most, 12, 31}}) {
        EXPECT_GT(today.daysTo(far), 700'000'000);
        EXPECT_EQ(far.daysTo(today), -today.daysTo(far));
        EXPECT_EQ(far.display(), u"Dec 31, 2000000"_qs);
        EXPECT_EQ(OMDay::fromIso(far.iso()), far);
        EXPECT_EQ(far.adding(1), far);
        EXPECT_GT(far, today);
    }
    const OMDay past{-999999999, 1, 1};
    EXPECT_LT(today.daysTo(past), -700'000'000);
    EXPECT_EQ(past.adding(-1), past);
}

} // namespace
} // namespace ormiva
