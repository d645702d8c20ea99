#include "TrackingPrinters.h"

namespace ormiva {
namespace {

using namespace ormiva::testing;
using ReminderPlanner::plan;

QString noName(std::optional<qint64>) {
    return {};
}

TEST(Plan, NamesEachMomentOfTheNextTwoWeeks) {
    const FixedCalendar calendar(utc(2026, 11, 21), u"Europe/Berlin"_qs);
    Reminder bulb = reminder({2026, 11, 25}, 182, 10, 15);
    bulb.id = 12;
    bulb.petID = 3;
    bulb.kind = ReminderKind::Uvb;
    bulb.title = u"  "_qs;
    Reminder water = reminder({2026, 12, 4}, 7, 8);
    water.id = 4;
    water.kind = ReminderKind::Water;
    water.title = u" Change water "_qs;
    QList<std::optional<qint64>> asked;
    const auto petName = [&](std::optional<qint64> id) {
        asked.append(id);
        return id ? u"Rex %1"_qs.arg(*id) : QString();
    };
    const Instant bulbTime = utc(2026, 11, 25, 9, 15);
    const Instant waterTime = utc(2026, 12, 4, 7);
    EXPECT_EQ(
        plan({water, bulb}, petName, UserCalendar::now()),
        QList<ReminderRequest>(
            {{u"om.rem.12.1795598100"_qs, 12, bulbTime, u"Replace UVB bulb — Rex 3"_qs,
              u"UVB output fades before the bulb looks dim. Replace it as your bulb maker or vet advises."_qs},
             {u"om.rem.4.1796367600"_qs, 4, waterTime, u" Change water "_qs, u"Due now · VLK Ormiva"_qs}}));
    EXPECT_EQ(asked, QList<std::optional<qint64>>({std::nullopt, qint64(3)}));
}

TEST(Plan, OfADailyReminderHolds14Moments) {
    const FixedCalendar calendar(utc(2026, 11, 21), u"Europe/Berlin"_qs);
    const Reminder daily = reminder({2026, 1, 1}, 1, 9);
    EXPECT_EQ(plan({daily}, noName, utc(2026, 11, 21)).size(), 14);
    EXPECT_EQ(plan({daily}, noName, utc(2026, 11, 21, 8)).size(), 15); // Nine o'clock in Berlin: both ends.
    EXPECT_EQ(plan({daily}, noName, utc(2026, 11, 21), 3).size(), 3);
    EXPECT_EQ(plan({daily}, noName, utc(2026, 11, 21), 0).size(), 0);
}

TEST(Plan, CountsItsDaysByTheCalendar) {
    const FixedCalendar calendar(utc(2026, 10, 24, 7), u"Europe/Berlin"_qs);
    // One day from 9:00 over the end of summer time is 25 hours.
    EXPECT_EQ(plan({reminder({2026, 1, 1}, 1, 9)}, noName, UserCalendar::now(), 1).size(), 2);
}

TEST(Plan, KeepsThe60Earliest) {
    const FixedCalendar calendar(utc(2026, 11, 21), u"Europe/Berlin"_qs);
    QList<Reminder> five;
    for (int i = 0; i < 5; ++i) {
        five.append(reminder({2026, 1, 1}, 1, 9));
        five.last().id = i + 1;
    }
    const QList<ReminderRequest> requests = plan(five, noName, UserCalendar::now());
    ASSERT_EQ(requests.size(), 60);
    for (int i = 0; i < 60; ++i) {
        EXPECT_EQ(requests.at(i).reminderID, i % 5 + 1); // Of one moment, in the order of the reminders.
        EXPECT_EQ(requests.at(i).fire, utc(2026, 11, 22 + i / 5 - (i / 5 > 8 ? 30 : 0), 8) +
                                           (i / 5 > 8 ? std::chrono::days(30) : std::chrono::days(0)));
    }
    five.removeLast();
    EXPECT_EQ(plan(five, noName, UserCalendar::now()).size(), 56);
}

TEST(Plan, CountsSecondsTowardsZeroBefore1970) {
    const FixedCalendar calendar(utc(1969, 12, 1));
    const QList<ReminderRequest> requests =
        plan({reminder({1969, 12, 30}, 5, 23, 59)}, noName, utc(1969, 12, 30));
    ASSERT_EQ(requests.size(), 3);
    EXPECT_EQ(requests.at(0).id, u"om.rem.7.-86460"_qs);
}

} // namespace
} // namespace ormiva
