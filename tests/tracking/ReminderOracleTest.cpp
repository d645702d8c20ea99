#include "ReminderOracle.h"
#include "TrackingPrinters.h"

#include <random>

namespace ormiva {
namespace {

using namespace ormiva::testing;
using namespace std::chrono;

/// Zones with changes at night, at midnight, by half an hour, in the southern hemisphere, and without.
const QStringList zones = {u"Europe/Berlin"_qs,       u"America/New_York"_qs, u"America/Sao_Paulo"_qs,
                           u"Australia/Lord_Howe"_qs, u"Asia/Kathmandu"_qs,   u"America/St_Johns"_qs,
                           u"Asia/Beirut"_qs,         u"Pacific/Auckland"_qs, u"UTC"_qs,
                           u"Africa/Cairo"_qs,        u"America/Asuncion"_qs, u"Atlantic/Azores"_qs};
constexpr int firstYear = 2004;
constexpr int lastYear = 2018;

class Draw {
public:
    explicit Draw(unsigned seed)
        : m_engine(seed) {}
    int between(int least, int most) { return std::uniform_int_distribution(least, most)(m_engine); }

private:
    std::mt19937 m_engine;
};

/// A moment within three days of one of the zone's changes, or anywhere.
Instant aroundAChange(Draw& draw, const std::vector<Instant>& changes) {
    if (changes.empty() || draw.between(0, 4) == 0)
        return utc(2006, 1, 1) + minutes(draw.between(0, 10 * 366 * 1440));
    const auto any = static_cast<std::size_t>(draw.between(0, static_cast<int>(changes.size()) - 1));
    return changes[any] + minutes(draw.between(-3 * 1440, 3 * 1440));
}

/// A reminder that was begun, and perhaps done, in the weeks before `now`; often in the hours of changes.
Reminder anyReminder(Draw& draw, Instant now) {
    Reminder drawn =
        reminder(OMDay::of(now).adding(draw.between(-60, 4)), draw.between(1, 9),
                 draw.between(0, 1) == 0 ? draw.between(0, 3) : draw.between(0, 23), draw.between(0, 3) * 15);
    if (draw.between(0, 2) == 0)
        drawn.lastDone = OMDay::of(now).adding(draw.between(-40, 0));
    return drawn;
}

std::string told(const Reminder& reminder, Instant now) {
    return (u"every %1 days at %2:%3 from %4, done %5, now %6"_qs)
        .arg(reminder.everyDays)
        .arg(reminder.hour)
        .arg(reminder.minute)
        .arg(reminder.start.iso(), reminder.lastDone ? reminder.lastDone->iso() : u"never"_qs, shown(now))
        .toStdString();
}

TEST(ReminderOracle, AgreesAroundTheChangesOfTheClocks) {
    constexpr int casesPerZone = 400;
    Draw draw(20261122);
    int changesMet = 0;
    for (const QString& zone : zones) {
        const ReminderOracle oracle(zone, firstYear, lastYear);
        const std::vector<Instant> changes = oracle.changes();
        changesMet += static_cast<int>(changes.size());
        const FixedCalendar calendar(utc(2010, 1, 1), zone);
        for (int i = 0; i < casesPerZone; ++i) {
            const Instant now = aroundAChange(draw, changes);
            const Reminder drawn = anyReminder(draw, now);
            const std::string place = zone.toStdString() + ": " + told(drawn, now);
            ASSERT_EQ(shown(ReminderPlanner::nextDue(drawn, now)), shown(oracle.nextDue(drawn, now)))
                << place;
            const Instant to = now + days(draw.between(0, 12));
            ASSERT_EQ(ReminderPlanner::occurrences(drawn, now, to), oracle.occurrences(drawn, now, to))
                << place;
        }
    }
    EXPECT_GE(changesMet, 200);
}

TEST(ReminderOracle, AgreesWhenYearsAreCaughtUp) {
    constexpr int cases = 60;
    Draw draw(7);
    for (const QString& zone : {u"Europe/Berlin"_qs, u"America/Sao_Paulo"_qs, u"Australia/Lord_Howe"_qs}) {
        const ReminderOracle oracle(zone, firstYear, lastYear);
        const FixedCalendar calendar(utc(2010, 1, 1), zone);
        for (int i = 0; i < cases; ++i) {
            const Instant now = utc(2016, 1, 1) + minutes(draw.between(0, 366 * 1440));
            Reminder drawn =
                reminder({2005, 1, 1}, draw.between(1, 7), draw.between(0, 3), draw.between(0, 3) * 15);
            drawn.lastDone = OMDay{2012, 1, 1}.adding(draw.between(0, 1000));
            const Instant to = now + days(10);
            ASSERT_EQ(shown(ReminderPlanner::occurrences(drawn, now, to)),
                      shown(oracle.occurrences(drawn, now, to)))
                << zone.toStdString() << ": " << told(drawn, now);
        }
    }
}

} // namespace
} // namespace ormiva
