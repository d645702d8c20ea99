#include "TrackingPrinters.h"

#include <algorithm>
#include <random>

// What holds for every reminder, tried on many. The seeds are fixed.

namespace ormiva {
namespace {

using namespace ormiva::testing;
using namespace std::chrono;
using ReminderPlanner::nextDue;
using ReminderPlanner::occurrences;

const QStringList zones = {u"Europe/Berlin"_qs,
                           u"America/New_York"_qs,
                           u"America/Sao_Paulo"_qs,
                           u"Australia/Lord_Howe"_qs,
                           u"Pacific/Apia"_qs,
                           u"Asia/Tehran"_qs,
                           u"UTC"_qs,
                           u"America/Havana"_qs};

class AnyReminders {
public:
    explicit AnyReminders(unsigned seed)
        : m_engine(seed) {}

    int between(int least, int most) { return std::uniform_int_distribution(least, most)(m_engine); }

    Instant moment() {
        return utc(2008, 1, 1) + seconds(between(0, 20 * 365 * 24)) * 3600 + seconds(between(0, 3599));
    }

    Reminder near(Instant now) {
        Reminder drawn = reminder(OMDay::of(now).adding(between(-800, 30)), between(1, 40), between(0, 23),
                                  between(0, 59));
        drawn.id = between(1, 1'000'000);
        if (between(0, 3) == 0)
            drawn.lastDone = OMDay::of(now).adding(between(-400, 5));
        return drawn;
    }

private:
    std::mt19937 m_engine;
};

template <typename Check>
void forEachCase(int casesPerZone, unsigned seed, const Check& check) {
    AnyReminders any(seed);
    for (const QString& zone : zones) {
        const FixedCalendar calendar(utc(2020, 1, 1), zone);
        for (int i = 0; i < casesPerZone && !::testing::Test::HasFatalFailure(); ++i)
            check(any);
    }
}

TEST(ReminderProperties, NeverDoneIsNeverDueBeforeNow) {
    forEachCase(5'000, 1, [](AnyReminders& any) {
        const Instant now = any.moment();
        Reminder drawn = any.near(now);
        drawn.lastDone.reset();
        const auto due = nextDue(drawn, now);
        ASSERT_TRUE(due);
        ASSERT_GE(*due, now);
        ASSERT_FALSE(ReminderPlanner::isOverdue(drawn, now));
        // And not later than the first day of the grid that isn't over.
        ASSERT_LE(*due, std::max(drawn.start.date(), now) + days(drawn.everyDays) + hours(26));
    });
}

TEST(ReminderProperties, DoneIsDueItsIntervalAfterThatDay) {
    forEachCase(3'000, 2, [](AnyReminders& any) {
        const Instant now = any.moment();
        Reminder drawn = any.near(now);
        drawn.lastDone = OMDay::of(now).adding(any.between(-400, 400));
        const auto due = nextDue(drawn, now);
        ASSERT_TRUE(due);
        ASSERT_EQ(OMDay::of(*due), drawn.lastDone->adding(drawn.everyDays));
        ASSERT_EQ(nextDue(drawn, any.moment()), due);
        ASSERT_EQ(ReminderPlanner::isOverdue(drawn, now), *due < now);
    });
}

TEST(ReminderProperties, OccurrencesAreStepsOfTheCalendarInsideTheSpan) {
    forEachCase(2'500, 3, [](AnyReminders& any) {
        const Instant from = any.moment();
        const Instant to = from + days(any.between(0, 120));
        const Reminder drawn = any.near(from);
        const QList<Instant> moments = occurrences(drawn, from, to);
        const auto first = nextDue(drawn, from);
        ASSERT_TRUE(first);
        if (*first >= from) {
            ASSERT_EQ(moments.isEmpty(), *first > to);
            if (!moments.isEmpty()) {
                ASSERT_EQ(moments.first(), *first);
            }
        }
        for (qsizetype i = 0; i < moments.size(); ++i) {
            ASSERT_GE(moments[i], from);
            ASSERT_LE(moments[i], to);
            if (i == 0)
                continue;
            ASSERT_LT(moments[i - 1], moments[i]);
            ASSERT_EQ(UserCalendar::addingDays(moments[i - 1], drawn.everyDays), moments[i]);
            // The time of day moves at a gap only, and then to the first moment behind it.
            const auto before = UserCalendar::fields(moments[i - 1]);
            const auto now = UserCalendar::fields(moments[i]);
            if (before.hour != now.hour || before.minute != now.minute) {
                const auto skipped = UserCalendar::skippedTimes(moments[i - 1], moments[i]);
                ASSERT_FALSE(skipped.isEmpty());
                ASSERT_EQ(skipped.last().after, moments[i]);
            }
        }
        if (!moments.isEmpty() && moments.size() < 400) {
            ASSERT_GT(UserCalendar::addingDays(moments.last(), drawn.everyDays).value(), to);
        }
    });
}

TEST(ReminderProperties, OccurrencesOfAPartAreThoseOfTheWhole) {
    forEachCase(1'000, 4, [](AnyReminders& any) {
        const Instant from = any.moment();
        const Instant to = from + days(100);
        Reminder drawn = any.near(from);
        drawn.lastDone = OMDay::of(from).adding(-any.between(0, 300));
        const QList<Instant> whole = occurrences(drawn, from, to);
        const Instant middle = from + days(any.between(0, 100));
        QList<Instant> part;
        std::ranges::copy_if(whole, std::back_inserter(part),
                             [&](Instant moment) { return moment >= middle; });
        ASSERT_EQ(shown(occurrences(drawn, middle, to)), shown(part))
            << drawn.start.iso().toStdString() << ' ' << drawn.everyDays << ' '
            << drawn.lastDone->iso().toStdString() << ' ' << drawn.hour << ':' << drawn.minute
            << shown(from).toStdString() << " " << shown(middle).toStdString() << " first "
            << shown(nextDue(drawn, middle)).toStdString();
    });
}

TEST(ReminderProperties, ThePlanIsTheUnionOfTheOccurrencesCutTo60) {
    forEachCase(150, 5, [](AnyReminders& any) {
        const Instant now = any.moment();
        QList<Reminder> reminders;
        for (int i = any.between(0, 12); i > 0; --i)
            reminders.append(any.near(now));
        for (Reminder& reminder : reminders)
            reminder.active = any.between(0, 5) != 0;
        const QList<ReminderRequest> plan = ReminderPlanner::plan(
            reminders, [](auto) { return QString(); }, now);

        QList<std::pair<Instant, qint64>> expected;
        for (const Reminder& reminder : reminders)
            for (const Instant moment : occurrences(reminder, now, UserCalendar::addingDays(now, 14).value()))
                expected.append({moment, reminder.id});
        std::ranges::stable_sort(expected, {}, &std::pair<Instant, qint64>::first);
        expected = expected.first(std::min<qsizetype>(expected.size(), 60));
        QList<std::pair<Instant, qint64>> planned;
        for (const ReminderRequest& request : plan) {
            planned.append({request.fire, request.reminderID});
            ASSERT_EQ(request.id, u"om.rem.%1.%2"_qs.arg(request.reminderID)
                                      .arg(request.fire.time_since_epoch().count() / 1000));
        }
        ASSERT_EQ(planned, expected);
    });
}

} // namespace
} // namespace ormiva
