#include "CalendarModel.h"

#include "TrackingPrinters.h"

namespace ormiva {
namespace {

using namespace ormiva::testing;
using CalendarModel::MonthGrid;
using CalendarModel::monthGrid;
using CalendarModel::shifted;

TEST(MonthShift, GoesToTheFirstOfTheMonth) {
    EXPECT_EQ(shifted({2026, 1, 31}, 1), (OMDay{2026, 2, 1}));
    EXPECT_EQ(shifted({2026, 1, 1}, -1), (OMDay{2025, 12, 1}));
    EXPECT_EQ(shifted({2026, 11, 22}, 0), (OMDay{2026, 11, 1}));
    EXPECT_EQ(shifted({2026, 11, 1}, 14), (OMDay{2028, 1, 1}));
    EXPECT_EQ(shifted({2026, 11, 1}, -35), (OMDay{2023, 12, 1}));
    EXPECT_EQ(shifted({0, 1, 1}, -1), (OMDay{-1, 12, 1}));
}

TEST(MonthShift, AndItsInverseMeet) {
    OMDay month{1999, 12, 1};
    for (int i = 0; i < 5'000; ++i, month = shifted(month, 1))
        for (const int by : {-25, -12, -1, 1, 7, 12})
            ASSERT_EQ(shifted(shifted(month, by), -by), month);
    EXPECT_EQ(month, (OMDay{2416, 8, 1}));
}

TEST(MonthGrid, BeginsItsWeeksAsTheLocaleDoes) {
    struct Case {
        QString locale;
        QStringList weekdays;
        int blanks;
    };
    // November 1, 2026 is a Sunday.
    for (const auto& [locale, weekdays, blanks] :
         {Case{u"en_US"_qs, {u"Sun"_qs, u"Mon"_qs, u"Tue"_qs, u"Wed"_qs, u"Thu"_qs, u"Fri"_qs, u"Sat"_qs}, 0},
          Case{u"en_GB"_qs, {u"Mon"_qs, u"Tue"_qs, u"Wed"_qs, u"Thu"_qs, u"Fri"_qs, u"Sat"_qs, u"Sun"_qs}, 6},
          Case{u"de_DE"_qs, {u"Mo"_qs, u"Di"_qs, u"Mi"_qs, u"Do"_qs, u"Fr"_qs, u"Sa"_qs, u"So"_qs}, 6},
          Case{u"en_EG"_qs,
               {u"Sat"_qs, u"Sun"_qs, u"Mon"_qs, u"Tue"_qs, u"Wed"_qs, u"Thu"_qs, u"Fri"_qs},
               1}}) {
        const FixedCalendar calendar(utc(2026, 11, 21), u"UTC"_qs, locale);
        const MonthGrid grid = monthGrid({2026, 11, 22});
        EXPECT_EQ(grid.leadingBlanks, blanks) << locale.toStdString();
        EXPECT_EQ(grid.days.size(), 30);
        if (locale != u"de_DE") {
            EXPECT_EQ(grid.weekdays, weekdays) << locale.toStdString();
        } else {
            for (int i = 0; i < 7; ++i) // Some versions of the locale write "Mo.".
                EXPECT_TRUE(grid.weekdays.value(i).startsWith(weekdays.at(i)));
        }
    }
}

TEST(MonthGrid, HoldsEachDayOnceInItsColumn) {
    for (const QString& locale : {u"en_US"_qs, u"de_DE"_qs, u"en_EG"_qs}) {
        const FixedCalendar calendar(utc(2026, 11, 21), u"Pacific/Apia"_qs, locale);
        OMDay month{2010, 1, 1};
        for (int i = 0; i < 360; ++i, month = shifted(month, 1)) {
            const MonthGrid grid = monthGrid(month);
            QDate expected(static_cast<int>(month.y), month.m, 1);
            ASSERT_EQ(grid.days.size(), expected.daysInMonth());
            ASSERT_EQ(grid.weekdays.size(), 7);
            const int first = locale == u"en_US"   ? 7
                              : locale == u"de_DE" ? 1
                                                   : 6; // As QDate counts: Monday is 1.
            ASSERT_EQ(grid.leadingBlanks, (expected.dayOfWeek() - first + 7) % 7)
                << month.iso().toStdString();
            for (const OMDay& day : grid.days) {
                ASSERT_EQ(day, (OMDay{expected.year(), expected.month(), expected.day()}));
                expected = expected.addDays(1);
            }
        }
    }
}

} // namespace
} // namespace ormiva
