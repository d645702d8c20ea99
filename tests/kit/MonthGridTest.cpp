#include "MonthGrid.h"

#include "FixedCalendar.h"
#include "Printers.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace ormiva::testing {

namespace {

constexpr OMDay march17{2026, 3, 17};

/// The grid with its cursor on a day.
class StandingAt : public MonthGrid {
public:
    explicit StandingAt(const OMDay& day)
        : MonthGrid(nullptr) {
        setDay(day);
        open();
    }
};

QStringList numbers(const MonthGrid& grid) {
    QStringList numbers;
    for (const MonthCell& cell : grid.cells())
        numbers.append(cell.number);
    return numbers;
}

} // namespace

TEST(MonthGrid, BeginsAtToday) {
    const FixedCalendar calendar(utc(2026, 3, 17));
    const MonthGrid grid;
    EXPECT_EQ(grid.day(), march17);
    EXPECT_EQ(grid.cursor(), march17);
    EXPECT_EQ(grid.title(), u"March 2026"_qs);
}

TEST(MonthGrid, LaysTheMonthOutInWeeksOfTheLocale) {
    const FixedCalendar american(utc(2026, 3, 17));
    const MonthGrid grid;
    EXPECT_EQ(grid.weekdays(), u"Sun Mon Tue Wed Thu Fri Sat"_qs.split(u' '));
    QStringList days;
    for (int day = 1; day <= 31; ++day)
        days.append(QString::number(day));
    EXPECT_EQ(numbers(grid), days + QStringList(11)); // March 1, 2026 was a Sunday.

    const FixedCalendar german(utc(2026, 3, 17), u"UTC"_qs, u"de_DE"_qs);
    EXPECT_EQ(grid.weekdays().first(), u"Mo."_qs);
    EXPECT_EQ(grid.title(), u"März 2026"_qs);
    EXPECT_EQ(numbers(grid), QStringList(6) + days + QStringList(5));
}

TEST(MonthGrid, MarksToday) {
    const FixedCalendar calendar(utc(2026, 3, 17));
    const MonthGrid grid;
    QList<OMDay> marked;
    for (const MonthCell& cell : grid.cells())
        if (cell.today)
            marked.append(cell.day);
    EXPECT_EQ(marked, QList<OMDay>{march17});
}

TEST(MonthGrid, MovesItsCursorByDaysAcrossMonths) {
    const FixedCalendar calendar(utc(2026, 3, 17));
    StandingAt grid({2026, 3, 31});
    QSignalSpy months(&grid, &MonthGrid::monthChanged);
    grid.moveDays(-1);
    EXPECT_EQ(grid.cursor(), (OMDay{2026, 3, 30}));
    EXPECT_EQ(months.size(), 0);
    grid.moveDays(7);
    EXPECT_EQ(grid.cursor(), (OMDay{2026, 4, 6}));
    EXPECT_EQ(months.size(), 1);
    EXPECT_EQ(grid.title(), u"April 2026"_qs);
    EXPECT_EQ(grid.day(), (OMDay{2026, 3, 31}));
}

TEST(MonthGrid, KeepsToTheLastDayOfAShorterMonth) {
    const FixedCalendar calendar(utc(2026, 3, 17));
    const auto moved = [](const OMDay& from, int months) {
        StandingAt grid(from);
        grid.moveMonths(months);
        return grid.cursor();
    };
    EXPECT_EQ(moved({2026, 1, 31}, 1), (OMDay{2026, 2, 28}));
    EXPECT_EQ(moved({2024, 1, 31}, 1), (OMDay{2024, 2, 29}));
    EXPECT_EQ(moved({2024, 2, 29}, 12), (OMDay{2025, 2, 28}));
    EXPECT_EQ(moved({2026, 1, 15}, -1), (OMDay{2025, 12, 15}));
    EXPECT_EQ(moved({2026, 3, 31}, -12), (OMDay{2025, 3, 31}));
}

TEST(MonthGrid, MovesToTheEndsOfTheLocalesWeek) {
    const auto ends = [](const QString& locale) {
        const FixedCalendar calendar(utc(2026, 3, 17), u"UTC"_qs, locale);
        StandingAt grid(march17); // a Tuesday
        grid.moveToWeekStart();
        const OMDay first = grid.cursor();
        grid.moveToWeekStart();
        EXPECT_EQ(grid.cursor(), first);
        grid.moveToWeekEnd();
        return std::pair(first, grid.cursor());
    };
    EXPECT_EQ(ends(u"en_US"_qs), std::pair(OMDay{2026, 3, 15}, OMDay{2026, 3, 21}));
    EXPECT_EQ(ends(u"de_DE"_qs), std::pair(OMDay{2026, 3, 16}, OMDay{2026, 3, 22}));
}

TEST(MonthGrid, StaysWithinTheYearsThatARecordCanHold) {
    const FixedCalendar calendar(utc(2026, 3, 17));
    StandingAt last({9999, 12, 31});
    last.moveDays(1);
    last.moveMonths(1);
    last.step(1);
    EXPECT_EQ(last.cursor(), (OMDay{9999, 12, 31}));
    EXPECT_EQ(last.day(), (OMDay{9999, 12, 31}));
    StandingAt first({1, 1, 1});
    first.moveDays(-1);
    first.moveMonths(-12);
    first.step(-1);
    EXPECT_EQ(first.cursor(), (OMDay{1, 1, 1}));
    EXPECT_EQ(first.day(), (OMDay{1, 1, 1}));
}

TEST(MonthGrid, OpensOnARealDayWhateverIsStored) {
    const FixedCalendar calendar(utc(2026, 3, 17));
    EXPECT_EQ(StandingAt({2026, 2, 31}).cursor(), (OMDay{2026, 3, 3}));
    EXPECT_EQ(StandingAt({123456, 1, 1}).cursor(), march17);
}

TEST(MonthGrid, ChoosesTheDayOfTheCursor) {
    const FixedCalendar calendar(utc(2026, 3, 17));
    StandingAt grid({2020, 5, 6});
    QSignalSpy changes(&grid, &MonthGrid::dayChanged);
    grid.moveToToday();
    EXPECT_EQ(changes.size(), 0);
    grid.choose();
    grid.choose();
    EXPECT_EQ(grid.day(), march17);
    EXPECT_EQ(changes.size(), 1);
    grid.step(-17);
    EXPECT_EQ(grid.day(), (OMDay{2026, 2, 28}));
}

TEST(MonthGrid, SeesANewDayWhenItOpens) {
    MonthGrid grid;
    grid.setDay(march17);
    for (const int today : {17, 18}) {
        const FixedCalendar calendar(utc(2026, 3, today));
        QSignalSpy months(&grid, &MonthGrid::monthChanged);
        grid.open();
        EXPECT_EQ(months.size(), 1);
        EXPECT_TRUE(grid.cells().at(today - 1).today);
    }
}

} // namespace ormiva::testing
