#include "MonthGrid.h"

#include "CalendarModel.h"

#include <algorithm>

namespace ormiva {

namespace {

constexpr qsizetype cellCount = 6 * 7;

bool canBeReached(const OMDay& day) {
    return day.y >= 1 && day.y <= 9999;
}

} // namespace

MonthGrid::MonthGrid(QObject* parent)
    : QObject(parent)
    , m_day(OMDay::today())
    , m_cursor(m_day) {}

void MonthGrid::setDay(const OMDay& day) {
    if (m_day == day)
        return;
    m_day = day;
    Q_EMIT dayChanged();
}

void MonthGrid::setCursor(const OMDay& cursor) {
    if (m_cursor == cursor || !canBeReached(cursor))
        return;
    const bool sameMonth = m_cursor.firstOfMonth() == cursor.firstOfMonth();
    m_cursor = cursor;
    if (!sameMonth)
        Q_EMIT monthChanged();
    Q_EMIT cursorChanged();
}

QString MonthGrid::title() const {
    return UserCalendar::monthAndYear(m_cursor.date());
}

QStringList MonthGrid::weekdays() const {
    return CalendarModel::monthGrid(m_cursor).weekdays;
}

QList<MonthCell> MonthGrid::cells() const {
    const CalendarModel::MonthGrid month = CalendarModel::monthGrid(m_cursor);
    const QStringList numbers = UserCalendar::dayNumbers();
    const OMDay today = OMDay::today();
    QList<MonthCell> cells(month.leadingBlanks);
    for (const OMDay& day : month.days)
        cells.append({day, numbers.at(day.d - 1), day == today});
    cells.resize(cellCount);
    return cells;
}

void MonthGrid::open() {
    // A record can hold any day, even one that the calendar doesn't have; the cursor stands on a real one.
    const OMDay day = OMDay::of(m_day.date());
    m_cursor = canBeReached(day) ? day : OMDay::today();
    Q_EMIT monthChanged();
    Q_EMIT cursorChanged();
}

void MonthGrid::step(int days) {
    const OMDay moved = m_day.adding(days);
    if (canBeReached(moved))
        setDay(moved);
}

void MonthGrid::moveDays(int days) {
    setCursor(m_cursor.adding(days));
}

void MonthGrid::moveMonths(int months) {
    OMDay moved = CalendarModel::shifted(m_cursor, months);
    moved.d = std::min(m_cursor.d, UserCalendar::daysInMonth(moved.y, moved.m));
    setCursor(moved);
}

void MonthGrid::moveToWeekStart() {
    moveDays(-daysIntoWeek());
}

void MonthGrid::moveToWeekEnd() {
    moveDays(6 - daysIntoWeek());
}

void MonthGrid::moveToToday() {
    setCursor(OMDay::today());
}

/// 0 on the locale's first day of the week.
int MonthGrid::daysIntoWeek() const {
    return (UserCalendar::weekday(m_cursor.date()) - UserCalendar::firstWeekday() + 7) % 7;
}

} // namespace ormiva
