#pragma once

#include "OMStore.h"

#include <QColor>
#include <QList>
#include <QMap>
#include <QString>
#include <QUuid>

/// What the care calendar shows: the reminders still to come and everything that was logged, for all pets.
namespace ormiva::CalendarModel {

/// One line of a day, and one dot of its cell. Made anew for each drawing; two are never the same.
struct Item {
    QUuid id = QUuid::createUuid();
    QString symbol;
    QString text;
    QColor color; ///< of the theme that was current when the item was made
};

/// The reminders of a day that isn't over, then the logs of the day, pet by pet.
QList<Item> items(OMStore& store, const OMDay& day);

/// The same for every day from `first` to `last`, days without items left out, with one pass over the
/// records.
QMap<OMDay, QList<Item>> items(OMStore& store, const OMDay& first, const OMDay& last);

/// `months` months later (or earlier), the first of that month.
OMDay shifted(const OMDay& month, int months);

/// A month as a grid of weeks, as the user's locale has them.
struct MonthGrid {
    QStringList weekdays;  ///< seven short names, beginning with the locale's first day of the week
    int leadingBlanks = 0; ///< cells before the first of the month, 0 to 6
    QList<OMDay> days;     ///< all days of the month

    friend bool operator==(const MonthGrid&, const MonthGrid&) = default;
};
MonthGrid monthGrid(const OMDay& month);

} // namespace ormiva::CalendarModel
