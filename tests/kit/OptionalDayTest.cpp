#include "OptionalDay.h"

#include "FixedCalendar.h"
#include "Printers.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace ormiva::testing {

TEST(OptionalDay, IsTodayWhenTurnedOnAndNoneWhenTurnedOff) {
    const FixedCalendar calendar(utc(2026, 3, 17));
    OptionalDay optional(nullptr);
    EXPECT_FALSE(optional.known());
    EXPECT_FALSE(optional.dayForQml().isValid());
    EXPECT_EQ(optional.shown(), (OMDay{2026, 3, 17}));
    optional.turn(true);
    EXPECT_EQ(optional.day(), (OMDay{2026, 3, 17}));
    optional.choose({2020, 2, 29});
    optional.turn(true);
    EXPECT_EQ(optional.day(), (OMDay{2020, 2, 29}));
    optional.turn(false);
    EXPECT_EQ(optional.day(), std::nullopt);
    optional.turn(true);
    EXPECT_EQ(optional.day(), (OMDay{2026, 3, 17}));
}

TEST(OptionalDay, TakesADayAndNothingElse) {
    OptionalDay optional(nullptr);
    QSignalSpy changes(&optional, &OptionalDay::dayChanged);
    optional.setDayFromQml(QVariant::fromValue(OMDay{2020, 2, 29}));
    EXPECT_EQ(optional.day(), (OMDay{2020, 2, 29}));
    EXPECT_EQ(optional.dayForQml().value<OMDay>(), (OMDay{2020, 2, 29}));
    for (const QVariant& none : {QVariant(), QVariant::fromValue(nullptr), QVariant(u"2020-02-29"_qs)}) {
        optional.setDayFromQml(QVariant::fromValue(OMDay{2020, 2, 29}));
        optional.setDayFromQml(none);
        EXPECT_EQ(optional.day(), std::nullopt);
    }
    EXPECT_EQ(changes.size(), 6);
}

} // namespace ormiva::testing
