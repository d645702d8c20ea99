#pragma once

#include "OMDay.h"

#include <QList>
#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace ormiva {

/// A cell of a month grid: a day, or a blank before the first or after the last of the month.
struct MonthCell {
    Q_GADGET
    QML_VALUE_TYPE(monthCell)
    Q_PROPERTY(ormiva::OMDay day MEMBER day)
    Q_PROPERTY(QString number MEMBER number)
    Q_PROPERTY(bool today MEMBER today)

public:
    OMDay day;
    QString number; ///< in the digits of the user's locale; empty for a blank
    bool today = false;

    friend bool operator==(const MonthCell&, const MonthCell&) = default;
};

/// A day, and the month in which another is looked for with a cursor. The days that can be reached are those
/// of the years 1 to 9999.
class MonthGrid : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(ormiva::OMDay day READ day WRITE setDay NOTIFY dayChanged FINAL)
    Q_PROPERTY(ormiva::OMDay cursor READ cursor WRITE setCursor NOTIFY cursorChanged FINAL)
    Q_PROPERTY(QString title READ title NOTIFY monthChanged FINAL)
    Q_PROPERTY(QStringList weekdays READ weekdays NOTIFY monthChanged FINAL)
    Q_PROPERTY(QList<ormiva::MonthCell> cells READ cells NOTIFY monthChanged FINAL)

public:
    /// Both the day and the cursor are today.
    explicit MonthGrid(QObject* parent = nullptr);

    /// The chosen day.
    const OMDay& day() const { return m_day; }
    void setDay(const OMDay& day);
    /// The day on which the keyboard stands; its month is the one on show.
    const OMDay& cursor() const { return m_cursor; }
    void setCursor(const OMDay& cursor);

    /// The month on show with its year, in the user's locale.
    QString title() const;
    /// Seven short names, beginning with the locale's first day of the week.
    QStringList weekdays() const;
    /// Six weeks of seven cells each, whatever the month.
    QList<MonthCell> cells() const;

    /// Puts the cursor on the chosen day and looks anew at which day is today.
    Q_INVOKABLE void open();
    /// Makes the day of the cursor the chosen one.
    Q_INVOKABLE void choose() { setDay(m_cursor); }
    /// Moves the chosen day.
    Q_INVOKABLE void step(int days);
    Q_INVOKABLE void moveDays(int days);
    /// A day that the other month doesn't have becomes its last one.
    Q_INVOKABLE void moveMonths(int months);
    Q_INVOKABLE void moveToWeekStart();
    Q_INVOKABLE void moveToWeekEnd();
    Q_INVOKABLE void moveToToday();

Q_SIGNALS:
    void dayChanged();
    void cursorChanged();
    void monthChanged();

private:
    int daysIntoWeek() const;

    OMDay m_day;
    OMDay m_cursor;
};

} // namespace ormiva
