#include "CalendarModel.h"

#include "OMColors.h"
#include "OMPrefs.h"
#include "ReminderPlanner.h"

#include <QHash>

namespace ormiva::CalendarModel {

namespace {

constexpr std::chrono::seconds lastSecondOfDay{86'399};

/// The rows of some days. A stored day that isn't in the usual form can still be one of them once it is read,
/// so such rows come along whatever they hold.
template <OMRecord T>
QList<T> logs(OMStore& store, const OMDay& first, const OMDay& last) {
    QList<T> read = store.all<T>(QStringLiteral("day BETWEEN ? AND ? OR typeof(day) <> 'text' OR "
                                                "day NOT GLOB '[0-9][0-9][0-9][0-9]-[0-9][0-9]-[0-9][0-9]'"),
                                 {first.iso(), last.iso()}, QStringLiteral("day DESC, id DESC"));
    erase_if(read, [&](const T& entry) { return entry.day < first || entry.day > last; });
    return read;
}

template <typename T>
QHash<qint64, QList<T>> byPet(const QList<T>& entries) {
    QHash<qint64, QList<T>> lists;
    for (const T& entry : entries)
        lists[entry.petID].append(entry);
    return lists;
}

/// The names of the pets that the store knows.
QHash<qint64, QString> names(const QList<Pet>& pets) {
    QHash<qint64, QString> names;
    for (const Pet& pet : pets)
        names.insert(pet.id, pet.name);
    return names;
}

QString reminderText(const Reminder& reminder, Instant moment, const QHash<qint64, QString>& petNames) {
    QString text = UserCalendar::shortTime(moment) + u' ' + reminder.displayTitle();
    if (reminder.petID && petNames.contains(*reminder.petID))
        text += QStringLiteral(" — ") + petNames.value(*reminder.petID);
    return text;
}

OMDay dayAfter(const OMDay& day) {
    return day.d < UserCalendar::daysInMonth(day.y, day.m) ? OMDay{day.y, day.m, day.d + 1} : shifted(day, 1);
}

/// The reminders of one day; past days tell none.
QList<Item> reminderItems(const QList<Reminder>& reminders, const OMDay& day, const OMDay& today,
                          const QHash<qint64, QString>& petNames) {
    const Instant start = UserCalendar::startOfDay(day.date());
    const Instant end = start + lastSecondOfDay;
    const Instant from = day < today ? end : start;
    QList<Item> items;
    for (const Reminder& reminder : reminders)
        for (const Instant moment : ReminderPlanner::occurrences(reminder, from, end))
            items.append({.symbol = info(reminder.kind).symbol,
                          .text = reminderText(reminder, moment, petNames),
                          .color = OMColors::soon()});
    return items;
}

} // namespace

QMap<OMDay, QList<Item>> items(OMStore& store, const OMDay& first, const OMDay& last) {
    QMap<OMDay, QList<Item>> items;
    if (last < first)
        return items;
    const QList<Pet> pets = store.pets();
    const QHash<qint64, QString> petNames = names(pets);
    const QList<Reminder> reminders = store.reminders();
    const OMDay today = OMDay::today();
    for (OMDay day = first; day <= last; day = dayAfter(day))
        if (const QList<Item> ofDay = reminderItems(reminders, day, today, petNames); !ofDay.isEmpty())
            items.insert(day, ofDay);

    const auto feedings = byPet(logs<FeedingEntry>(store, first, last));
    const auto sheds = byPet(logs<ShedEntry>(store, first, last));
    const auto visits = byPet(logs<VetVisit>(store, first, last));
    QHash<qint64, QList<WeightEntry>> weights = byPet(logs<WeightEntry>(store, first, last));
    for (QList<WeightEntry>& list : weights)
        std::ranges::reverse(list); // As the store lists weights: oldest first.

    const QColor dim = OMColors().dim();
    for (const Pet& pet : pets) {
        const QString name = pet.name + QStringLiteral(": ");
        const auto add = [&](const OMDay& day, const QString& symbol, const QString& text,
                             const QColor& color) {
            items[day].append({.symbol = symbol, .text = name + text, .color = color});
        };
        for (const FeedingEntry& entry : feedings.value(pet.id))
            add(entry.day, QStringLiteral("fork.knife"),
                entry.ate ? entry.food : entry.food + QStringLiteral(" (refused)"), OMColors::leaf());
        for (const ShedEntry& entry : sheds.value(pet.id))
            add(entry.day, QStringLiteral("sparkles"),
                entry.complete ? QStringLiteral("shed complete") : QStringLiteral("shed incomplete"),
                OMColors::leaf());
        for (const VetVisit& entry : visits.value(pet.id))
            add(entry.day, QStringLiteral("stethoscope"), QStringLiteral("vet — ") + entry.reason,
                OMColors::warmLight());
        for (const WeightEntry& entry : weights.value(pet.id))
            add(entry.day, QStringLiteral("scalemass.fill"), OMPrefs::weightText(entry.grams), dim);
    }
    return items;
}

QList<Item> items(OMStore& store, const OMDay& day) {
    return items(store, day, day).value(day);
}

OMDay shifted(const OMDay& month, int months) {
    const qint64 counted = month.y * 12 + (month.m - 1) + months;
    const qint64 inYear = (counted % 12 + 12) % 12;
    return {(counted - inYear) / 12, static_cast<int>(inYear) + 1, 1};
}

MonthGrid monthGrid(const OMDay& month) {
    const OMDay first = month.firstOfMonth();
    const int firstWeekday = UserCalendar::firstWeekday();
    MonthGrid grid;
    grid.weekdays = UserCalendar::shortWeekdays();
    std::rotate(grid.weekdays.begin(), grid.weekdays.begin() + (firstWeekday - 1), grid.weekdays.end());
    grid.leadingBlanks = (UserCalendar::weekday(first.date()) - firstWeekday + 7) % 7;
    for (int day = 1; day <= UserCalendar::daysInMonth(first.y, first.m); ++day)
        grid.days.append({first.y, first.m, day});
    return grid;
}

} // namespace ormiva::CalendarModel
