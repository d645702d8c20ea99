#include "CalendarModel.h"

#include "MadeStore.h"
#include "OMColors.h"
#include "PrefsInFile.h"
#include "TrackingPrinters.h"

namespace ormiva {
namespace {

using namespace ormiva::testing;

/// "symbol | text | #color" of each item.
QStringList lines(const QList<CalendarModel::Item>& items) {
    QStringList lines;
    for (const CalendarModel::Item& item : items)
        lines.append(item.symbol + u" | "_qs + item.text + u" | "_qs + item.color.name());
    return lines;
}

/// 10 o'clock on November 21, 2026 in Berlin; 24-hour times.
class Calendar : public ::testing::Test {
protected:
    const OMDay today{2026, 11, 21};
    const OMDay yesterday{2026, 11, 20};
    FixedCalendar m_calendar{utc(2026, 11, 21, 9), u"Europe/Berlin"_qs, u"de_DE"_qs};
    PrefsInFile m_prefs;
    MadeStore made;
    const QString soon = OMColors::soon().name();
    const QString leaf = OMColors::leaf().name();
    const QString warmLight = OMColors::warmLight().name();
    const QString dim = OMColors().dim().name();

    Reminder addReminder(const OMDay& start, qint64 everyDays, qint64 hour, std::optional<qint64> pet = {}) {
        Reminder added = reminder(start, everyDays, hour);
        added.id = 0;
        added.petID = pet;
        return made.saved(added);
    }
    template <typename T>
    T add(qint64 pet, const OMDay& day, T entry = {}) {
        entry.petID = pet;
        entry.day = day;
        return made.saved(entry);
    }
    WeightEntry weight(double grams) {
        WeightEntry entry;
        entry.grams = grams;
        return entry;
    }
    FeedingEntry meal(const QString& food, bool ate = true) {
        FeedingEntry entry;
        entry.food = food;
        entry.ate = ate;
        return entry;
    }
    QStringList on(const OMDay& day) { return lines(CalendarModel::items(made.store, day)); }
};

TEST_F(Calendar, OfNothingIsEmpty) {
    EXPECT_EQ(on(today), QStringList());
    EXPECT_TRUE(CalendarModel::items(made.store, {2026, 11, 1}, {2026, 11, 30}).isEmpty());
    EXPECT_TRUE(CalendarModel::items(made.store, today, yesterday).isEmpty());
}

TEST_F(Calendar, ShowsRemindersStillToComeAndThoseOfToday) {
    addReminder({2026, 11, 1}, 1, 9);
    EXPECT_EQ(on(today), QStringList({u"fork.knife | 09:00 Feeding | "_qs + soon}));
    EXPECT_EQ(on(today.adding(1)), QStringList({u"fork.knife | 09:00 Feeding | "_qs + soon}));
    EXPECT_EQ(on(yesterday), QStringList());
    EXPECT_EQ(on({2026, 11, 1}), QStringList());
}

TEST_F(Calendar, ShowsAReminderAtTheLastSecondOfAPastDayOnly) {
    // Past days are asked for their last second alone, which no reminder in whole minutes meets.
    addReminder({2026, 11, 1}, 1, 23);
    EXPECT_EQ(on(yesterday), QStringList());
}

TEST_F(Calendar, ShowsAReminderOnItsGrid) {
    addReminder({2026, 11, 21}, 3, 8);
    QList<OMDay> days;
    for (const auto& [day, items] :
         CalendarModel::items(made.store, {2026, 11, 1}, {2026, 11, 30}).asKeyValueRange())
        days.append(day);
    EXPECT_EQ(days, QList<OMDay>({{2026, 11, 21}, {2026, 11, 24}, {2026, 11, 27}, {2026, 11, 30}}));
}

TEST_F(Calendar, ShowsAnOverdueReminderFromTodayOn) {
    Reminder overdue = addReminder({2026, 1, 1}, 3, 8);
    made.store.markDone(overdue, {2026, 11, 14}); // Due on the 17th, then the 20th, the 23rd …
    QList<OMDay> days;
    for (const auto& [day, items] :
         CalendarModel::items(made.store, {2026, 11, 1}, {2026, 11, 30}).asKeyValueRange())
        days.append(day);
    EXPECT_EQ(days, QList<OMDay>({{2026, 11, 23}, {2026, 11, 26}, {2026, 11, 29}}));
}

TEST_F(Calendar, NamesThePetOfAReminderThatHasOne) {
    const Pet rex = made.addPet(u"Rex"_qs);
    addReminder(today, 1, 8, rex.id);
    addReminder(today, 1, 7);
    EXPECT_EQ(on(today), QStringList({u"fork.knife | 08:00 Feeding — Rex | "_qs + soon,
                                      u"fork.knife | 07:00 Feeding | "_qs + soon}));
}

TEST_F(Calendar, HidesPausedRemindersAndThoseOfDamagedRows) {
    Reminder paused = addReminder(today, 1, 8);
    paused.active = false;
    made.store.save(paused);
    addReminder(today, 1, 9);
    made.store.db().exec(u"UPDATE reminder SET hour = 99 WHERE hour = 9"_qs);
    EXPECT_EQ(on(today), QStringList());
}

TEST_F(Calendar, ListsTheLogsPetByPet) {
    const Pet zoe = made.addPet(u"zoe"_qs);
    const Pet abe = made.addPet(u"Abe"_qs);
    add(zoe.id, today, weight(421));
    add(abe.id, today, weight(30));
    add(abe.id, today, weight(31));
    add(abe.id, today, meal(u"Crickets"_qs));
    add(abe.id, today, meal(u"Mealworms"_qs, false));
    ShedEntry incomplete;
    incomplete.complete = false;
    add(abe.id, today, incomplete);
    add(abe.id, today, ShedEntry());
    VetVisit visit;
    visit.reason = u"Check-up"_qs;
    visit.clinic = u"Exotics"_qs;
    add(abe.id, today, visit);
    addReminder(today, 1, 22, zoe.id);
    add(abe.id, yesterday, weight(29));
    add(abe.id, today.adding(1), meal(u"Later"_qs));
    EXPECT_EQ(on(today), QStringList({
                             u"fork.knife | 22:00 Feeding — zoe | "_qs + soon,
                             u"fork.knife | Abe: Mealworms (refused) | "_qs + leaf,
                             u"fork.knife | Abe: Crickets | "_qs + leaf,
                             u"sparkles | Abe: shed complete | "_qs + leaf,
                             u"sparkles | Abe: shed incomplete | "_qs + leaf,
                             u"stethoscope | Abe: vet — Check-up | "_qs + warmLight,
                             u"scalemass.fill | Abe: 30.0 g | "_qs + dim,
                             u"scalemass.fill | Abe: 31.0 g | "_qs + dim,
                             u"scalemass.fill | zoe: 421.0 g | "_qs + dim,
                         }));
    EXPECT_EQ(on(yesterday), QStringList({u"scalemass.fill | Abe: 29.0 g | "_qs + dim}));
}

TEST_F(Calendar, ShowsWeightsInTheUsersUnit) {
    const Pet abe = made.addPet(u"Abe"_qs);
    add(abe.id, today, weight(421));
    OMPrefs::setValue(OMPrefs::weightUnitKey, u"oz"_qs);
    EXPECT_EQ(on(today), QStringList({u"scalemass.fill | Abe: 14.85 oz | "_qs + dim}));
}

TEST_F(Calendar, FindsDaysThatAreStoredInAnotherForm) {
    const Pet abe = made.addPet(u"Abe"_qs);
    for (const QString& stored :
         {u"2026-11-21"_qs, u"2026-11-5"_qs, u"02026-11-05"_qs, u"2026--11-6"_qs, u"soon"_qs}) {
        add(abe.id, today, weight(10));
        made.store.db().run(u"UPDATE weight SET day = ? WHERE id = (SELECT max(id) FROM weight)"_qs,
                            {stored});
    }
    add(abe.id, today, weight(10));
    made.store.db().exec(
        u"UPDATE weight SET day = x'323032362D31312D3037' WHERE id = (SELECT max(id) FROM weight)"_qs);
    // As the store reads them: what can't be read is today.
    QMap<OMDay, int> read;
    for (const WeightEntry& entry : made.store.weights(abe.id))
        ++read[entry.day];
    QMap<OMDay, int> shownCounts;
    for (const auto& [day, items] :
         CalendarModel::items(made.store, {2026, 11, 1}, {2026, 11, 30}).asKeyValueRange())
        shownCounts[day] = static_cast<int>(items.size());
    EXPECT_EQ(shownCounts, read);
    EXPECT_EQ(shownCounts.value({2026, 11, 5}), 2);
}

TEST_F(Calendar, OfAMonthIsThatOfItsDays) {
    QList<Pet> pets;
    for (int i = 0; i < 5; ++i)
        pets.append(made.addPet(u"Pet %1"_qs.arg(9 - i)));
    VetVisit visit;
    visit.reason = u"Check-up"_qs;
    for (int i = 0; i < 120; ++i) {
        const qint64 pet = pets.at(i % 5).id;
        const OMDay day = OMDay{2026, 10, 20}.adding(i * 7 % 60);
        add(pet, day, weight(10 + i));
        add(pet, day, meal(u"Meal %1"_qs.arg(i), i % 3 != 0));
        if (i % 4 == 0)
            add(pet, day, ShedEntry());
        if (i % 9 == 0)
            add(pet, day, visit);
    }
    for (int i = 0; i < 6; ++i)
        addReminder({2026, 11, 1 + i}, i + 1, i * 3,
                    i % 2 == 0 ? std::optional(pets.at(i % 5).id) : std::nullopt);
    const auto month = CalendarModel::items(made.store, {2026, 11, 1}, {2026, 11, 30});
    int shownItems = 0;
    for (OMDay day{2026, 11, 1}; day.m == 11; day = day.adding(1)) {
        EXPECT_EQ(lines(month.value(day)), on(day)) << day.iso().toStdString();
        shownItems += static_cast<int>(month.value(day).size());
    }
    EXPECT_GE(shownItems, 150);
}

TEST_F(Calendar, MakesEveryItemAnew) {
    addReminder(today, 1, 9);
    const auto first = CalendarModel::items(made.store, today);
    const auto second = CalendarModel::items(made.store, today);
    ASSERT_EQ(first.size(), 1);
    EXPECT_NE(first.first().id, second.first().id);
}

} // namespace
} // namespace ormiva
