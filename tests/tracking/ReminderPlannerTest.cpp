#include "TrackingPrinters.h"

namespace ormiva {
namespace {

using namespace ormiva::testing;
using ReminderPlanner::isOverdue;
using ReminderPlanner::nextDue;
using ReminderPlanner::occurrences;

const QString berlin = u"Europe/Berlin"_qs;

/// The first moment of a time of day that isn't in doubt.
Instant local(const OMDay& day, int hour, int minute = 0) {
    return UserCalendar::at(day.date(), hour, minute);
}

TEST(NextDue, OfAReminderNeverDoneIsNeverOver) {
    const FixedCalendar calendar(utc(2026, 11, 21), berlin);
    const OMDay today{2026, 11, 21};
    const Instant ten = local(today, 10);
    EXPECT_EQ(shown(nextDue(reminder(today, 1, 9), ten)), u"2026-11-22 09:00"_qs);
    EXPECT_EQ(shown(nextDue(reminder(today, 1, 18), ten)), u"2026-11-21 18:00"_qs);
    EXPECT_EQ(shown(nextDue(reminder(today, 3, 9), ten)), u"2026-11-24 09:00"_qs);
    EXPECT_EQ(shown(nextDue(reminder({2026, 12, 24}, 3, 9), ten)), u"2026-12-24 09:00"_qs);
}

TEST(NextDue, KeepsToTheGridFromItsStart) {
    const FixedCalendar calendar(utc(2026, 11, 21), berlin);
    const Instant ten = local({2026, 11, 21}, 10);
    EXPECT_EQ(shown(nextDue(reminder({2026, 11, 12}, 3, 9), ten)), u"2026-11-24 09:00"_qs);
    EXPECT_EQ(shown(nextDue(reminder({2026, 11, 12}, 3, 11), ten)), u"2026-11-21 11:00"_qs);
    EXPECT_EQ(shown(nextDue(reminder({2026, 11, 13}, 3, 11), ten)), u"2026-11-22 11:00"_qs);
    EXPECT_EQ(shown(nextDue(reminder({1, 1, 1}, 1, 9), ten)), u"2026-11-22 09:00"_qs);
}

TEST(NextDue, AtThisVeryMomentIsStillToCome) {
    const FixedCalendar calendar(utc(2026, 11, 21), berlin);
    const Instant nine = local({2026, 11, 21}, 9);
    for (const OMDay& start : {OMDay{2026, 11, 21}, OMDay{2026, 11, 1}}) {
        const Reminder daily = reminder(start, 1, 9);
        EXPECT_EQ(nextDue(daily, nine), nine);
        EXPECT_FALSE(isOverdue(daily, nine));
        EXPECT_EQ(occurrences(daily, nine, nine), QList<Instant>({nine}));
        EXPECT_EQ(shown(nextDue(daily, nine + std::chrono::milliseconds(1))), u"2026-11-22 09:00"_qs);
    }
}

TEST(NextDue, AfterItWasDoneIsItsIntervalAfterThatDay) {
    const FixedCalendar calendar(utc(2026, 11, 21), berlin);
    const Instant ten = local({2026, 11, 21}, 10);
    Reminder done = reminder({2030, 1, 1}, 3, 9);
    done.lastDone = OMDay{2026, 11, 16};
    EXPECT_EQ(shown(nextDue(done, ten)), u"2026-11-19 09:00"_qs);
    EXPECT_TRUE(isOverdue(done, ten));
    done.lastDone = OMDay{2026, 11, 21};
    EXPECT_EQ(shown(nextDue(done, ten)), u"2026-11-24 09:00"_qs);
    EXPECT_FALSE(isOverdue(done, ten));
    done.lastDone = OMDay{2026, 11, 18};
    done.hour = 10;
    EXPECT_EQ(nextDue(done, ten), ten);
    EXPECT_FALSE(isOverdue(done, ten));
    EXPECT_TRUE(isOverdue(done, ten + std::chrono::milliseconds(1)));
}

TEST(Reminders, ThatArePausedOrHaveNoIntervalHaveNoMoments) {
    const FixedCalendar calendar(utc(2026, 11, 21), berlin);
    const Instant now = UserCalendar::now();
    Reminder paused = reminder({2026, 11, 1}, 1, 9);
    paused.active = false;
    QList<Reminder> silent = {paused};
    for (const qint64 interval : {qint64(0), qint64(-1), qint64(-9'000'000'000'000'000'000)})
        silent.append(reminder({2026, 11, 1}, interval, 9));
    for (Reminder reminder : silent)
        for (const std::optional<OMDay>& lastDone :
             {std::optional<OMDay>(), std::optional(OMDay{2026, 11, 1})}) {
            reminder.lastDone = lastDone;
            EXPECT_EQ(nextDue(reminder, now), std::nullopt);
            EXPECT_FALSE(isOverdue(reminder, now));
            EXPECT_EQ(occurrences(reminder, now, now + std::chrono::days(20)), QList<Instant>());
            EXPECT_EQ(ReminderPlanner::plan(
                          {reminder}, [](auto) { return QString(); }, now),
                      QList<ReminderRequest>());
        }
}

TEST(Reminders, FromDamagedRowsHaveNoMoments) {
    const FixedCalendar calendar(utc(2026, 11, 21), berlin);
    const Instant now = UserCalendar::now();
    const OMDay day{2026, 11, 1};
    QList<Reminder> damaged = {
        reminder(day, 1, 99),
        reminder(day, 1, -1),
        reminder(day, 1, 24),
        reminder(day, 1, 9, -1),
        reminder(day, 1, 9, 60),
        reminder(day, 1, 9, 9'000'000'000'000'000'000),
        reminder(day, 9'000'000'000'000'000'000, 9),
        reminder({999'999'999, 1, 1}, 1, 9),
        reminder({10'000, 1, 1}, 1, 9),
        reminder({0, 12, 31}, 1, 9),
        reminder({-5, 1, 1}, 1, 9),
    };
    Reminder done = reminder(day, 3'650'000, 9);
    done.lastDone = day;
    damaged.append(done); // Next due in the year 12019.
    done = reminder(day, 1, 9);
    done.lastDone = OMDay{9'999, 12, 31};
    damaged.append(done);
    done.lastDone = OMDay{-4'000'000'000, 1, 1};
    damaged.append(done);
    for (const Reminder& reminder : damaged) {
        EXPECT_EQ(shown(nextDue(reminder, now)), u"never"_qs);
        EXPECT_EQ(occurrences(reminder, now, now + std::chrono::days(20)), QList<Instant>());
    }
    // An interval that leaves the years after the first time has that one.
    const Reminder once = reminder({2026, 11, 25}, 3'000'000, 9);
    EXPECT_EQ(shown(occurrences(once, now, now + std::chrono::days(20))),
              QStringList({u"2026-11-25 09:00"_qs}));
    // An overflowing day of a damaged row is the day that the calendar makes of it.
    EXPECT_EQ(shown(nextDue(reminder({2027, 2, 31}, 1, 9), now)), u"2027-03-03 09:00"_qs);
}

TEST(Occurrences, IncludeBothEnds) {
    const FixedCalendar calendar(utc(2026, 11, 21), berlin);
    const Reminder every2 = reminder({2026, 11, 1}, 2, 9);
    const Instant from = local({2026, 11, 21}, 9);
    EXPECT_EQ(shown(occurrences(every2, from, local({2026, 11, 25}, 9))),
              QStringList({u"2026-11-21 09:00"_qs, u"2026-11-23 09:00"_qs, u"2026-11-25 09:00"_qs}));
    EXPECT_EQ(shown(occurrences(every2, from + std::chrono::milliseconds(1),
                                local({2026, 11, 25}, 9) - std::chrono::milliseconds(1))),
              QStringList({u"2026-11-23 09:00"_qs}));
    EXPECT_EQ(shown(occurrences(every2, from, from - std::chrono::milliseconds(1))), QStringList());
}

TEST(Occurrences, StopAt400) {
    const FixedCalendar calendar(utc(2026, 11, 21), berlin);
    const QList<Instant> moments =
        occurrences(reminder({2026, 1, 1}, 1, 9), local({2026, 1, 1}, 0), local({2029, 1, 1}, 0));
    EXPECT_EQ(moments.size(), 400);
    EXPECT_EQ(shown(moments.last()), u"2027-02-04 09:00"_qs);
}

TEST(Occurrences, OfAReminderDoneLongAgoHoldNothingOfThePast) {
    const FixedCalendar calendar(utc(2026, 11, 21), berlin);
    Reminder done = reminder({2020, 1, 1}, 1, 9);
    done.lastDone = OMDay{2026, 11, 11};
    const Instant ten = local({2026, 11, 21}, 10);
    EXPECT_EQ(shown(nextDue(done, ten)), u"2026-11-12 09:00"_qs);
    EXPECT_EQ(shown(occurrences(done, ten, local({2026, 11, 24}, 10))),
              QStringList({u"2026-11-22 09:00"_qs, u"2026-11-23 09:00"_qs, u"2026-11-24 09:00"_qs}));
    // Skipped moments don't count towards the 400.
    done.lastDone = OMDay{1, 1, 1};
    EXPECT_EQ(occurrences(done, ten, local({2029, 1, 1}, 0)).size(), 400);
}

TEST(Occurrences, OfATimeThatTheClocksSkipAreTheFirstMomentAfterIt) {
    const FixedCalendar calendar(utc(2026, 3, 20), berlin);
    EXPECT_EQ(shown(nextDue(reminder({2026, 3, 29}, 1, 2, 30), UserCalendar::now())), u"2026-03-29 03:00"_qs);
    EXPECT_EQ(shown(nextDue(reminder({2026, 3, 29}, 1, 2, 0), UserCalendar::now())), u"2026-03-29 03:00"_qs);
    // The later ones of a list go on from there; the next moment is counted from the reminder's own time.
    const Reminder daily = reminder({2026, 3, 1}, 1, 2, 30);
    EXPECT_EQ(shown(occurrences(daily, local({2026, 3, 28}, 0), local({2026, 3, 31}, 23))),
              QStringList({u"2026-03-28 02:30"_qs, u"2026-03-29 03:00"_qs, u"2026-03-30 03:00"_qs,
                           u"2026-03-31 03:00"_qs}));
    EXPECT_EQ(shown(nextDue(daily, local({2026, 3, 29}, 12))), u"2026-03-30 02:30"_qs);
}

TEST(Occurrences, CarryAMovedTimeOfDayAlongWhenTheyCatchUp) {
    const FixedCalendar calendar(utc(2026, 6, 1), berlin);
    Reminder done = reminder({2026, 3, 1}, 1, 2, 30);
    done.lastDone = OMDay{2026, 3, 27};
    EXPECT_EQ(shown(occurrences(done, local({2026, 5, 30}, 0), local({2026, 5, 31}, 23))),
              QStringList({u"2026-05-30 03:00"_qs, u"2026-05-31 03:00"_qs}));
    // Every second day passes over the night of the change.
    done.everyDays = 2;
    done.lastDone = OMDay{2026, 3, 26};
    EXPECT_EQ(shown(occurrences(done, local({2026, 5, 30}, 0), local({2026, 6, 1}, 0))),
              QStringList({u"2026-05-31 02:30"_qs}));
}

TEST(Occurrences, OfATimeThatComesTwiceAreTheEarlierOne) {
    const FixedCalendar calendar(utc(2026, 10, 20), berlin);
    const QList<Instant> moments =
        occurrences(reminder({2026, 10, 24}, 1, 2, 30), UserCalendar::now(), utc(2026, 10, 26));
    EXPECT_EQ(moments,
              QList<Instant>({utc(2026, 10, 24, 0, 30), utc(2026, 10, 25, 0, 30), utc(2026, 10, 26, 1, 30)}));
    // Also when the step comes out of winter time.
    EXPECT_EQ(occurrences(reminder({2025, 10, 27}, 363, 2, 30), utc(2026, 10, 20), utc(2026, 10, 26)),
              QList<Instant>({utc(2026, 10, 25, 0, 30)}));
}

TEST(Occurrences, WorkWhereMidnightIsSkipped) {
    const FixedCalendar calendar(utc(2018, 11, 1), u"America/Sao_Paulo"_qs);
    EXPECT_EQ(shown(occurrences(reminder({2018, 11, 3}, 1, 0), utc(2018, 11, 2), utc(2018, 11, 6))),
              QStringList({u"2018-11-03 00:00"_qs, u"2018-11-04 01:00"_qs, u"2018-11-05 01:00"_qs,
                           u"2018-11-06 01:00"_qs}));
}

TEST(Occurrences, WorkWhereHalfAnHourIsSkipped) {
    const FixedCalendar calendar(utc(2026, 10, 1), u"Australia/Lord_Howe"_qs);
    EXPECT_EQ(shown(occurrences(reminder({2026, 10, 3}, 1, 2, 15), utc(2026, 10, 2), utc(2026, 10, 5))),
              QStringList({u"2026-10-03 02:15"_qs, u"2026-10-04 02:30"_qs, u"2026-10-05 02:30"_qs}));
}

TEST(Occurrences, WorkWhereAWholeDayIsSkipped) {
    const FixedCalendar calendar(utc(2011, 12, 20), u"Pacific/Apia"_qs);
    EXPECT_EQ(shown(occurrences(reminder({2011, 12, 29}, 1, 9), utc(2011, 12, 29), utc(2012, 1, 1))),
              QStringList({u"2011-12-29 09:00"_qs, u"2011-12-31 09:00"_qs, u"2012-01-01 09:00"_qs}));
    EXPECT_EQ(shown(nextDue(reminder({2011, 12, 29}, 1, 9), local({2011, 12, 29}, 10))),
              u"2011-12-31 09:00"_qs);
    EXPECT_EQ(shown(nextDue(reminder({2011, 12, 30}, 5, 9), local({2011, 12, 29}, 10))),
              u"2011-12-31 09:00"_qs);
}

} // namespace
} // namespace ormiva
