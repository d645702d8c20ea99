// Reminders, the calendar and backups against the least that could do their work.

#include "CalendarModel.h"
#include "Pairs.h"
#include "ReminderPlanner.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <sqlite3.h>

namespace ormiva::bench {

namespace {

constexpr int plannedReminders = 200;
constexpr int plannedDays = 14;
constexpr int keptPets = 20;
constexpr int keptDays = 3650;

QList<Reminder> manyReminders() {
    QList<Reminder> reminders;
    for (int i = 0; i < plannedReminders; ++i) {
        Reminder reminder;
        reminder.id = i + 1;
        reminder.start = OMDay::today().adding(-i);
        reminder.everyDays = 1 + i % 7;
        reminder.hour = i % 24;
        reminders.append(reminder);
    }
    return reminders;
}

/// Places as many moments in the calendar as the plan has, and one for each reminder's end.
void placeMoments(const QList<Reminder>& reminders) {
    for (const Reminder& reminder : reminders)
        for (qint64 day = 0; day <= plannedDays + reminder.everyDays; day += reminder.everyDays)
            benchmark::DoNotOptimize(UserCalendar::addingDays(UserCalendar::now(), day + 1));
}

/// Ten years of daily weights and meals of twenty pets: about 150,000 rows.
void fill(OMStore& store) {
    store.db().transaction([&] {
        for (int pet = 1; pet <= keptPets; ++pet)
            store.db().run(QStringLiteral("INSERT INTO pet (name, species_id) VALUES (?, 'rabbit')"),
                           {QStringLiteral("Pet %1").arg(pet)});
        OMDay day = OMDay::today().adding(-keptDays);
        for (int i = 0; i < keptDays; ++i, day = day.adding(1))
            for (int pet = 1; pet <= keptPets; ++pet) {
                store.db().run(QStringLiteral("INSERT INTO weight (pet_id, day, grams) VALUES (?, ?, 421)"),
                               {pet, day.iso()});
                store.db().run(QStringLiteral("INSERT INTO feeding (pet_id, day, food) VALUES (?, ?, 'hay')"),
                               {pet, day.iso()});
            }
    });
}

/// Finds the rows of some days, and nothing else.
void passOver(sqlite3* handle, const QByteArray& first, const QByteArray& last) {
    for (const char* sql : {"SELECT * FROM weight WHERE day BETWEEN ? AND ?",
                            "SELECT * FROM feeding WHERE day BETWEEN ? AND ?"}) {
        sqlite3_stmt* statement = nullptr;
        sqlite3_prepare_v2(handle, sql, -1, &statement, nullptr);
        sqlite3_bind_text(statement, 1, first.constData(), -1, SQLITE_STATIC);
        sqlite3_bind_text(statement, 2, last.constData(), -1, SQLITE_STATIC);
        while (sqlite3_step(statement) == SQLITE_ROW)
            benchmark::DoNotOptimize(sqlite3_column_text(statement, 2));
        sqlite3_finalize(statement);
    }
}

void vacuumInto(sqlite3* handle, const QString& path) {
    QFile::remove(path);
    const QByteArray sql = QStringLiteral("VACUUM INTO '%1'").arg(path).toUtf8();
    if (sqlite3_exec(handle, sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        std::abort();
}

} // namespace

void addTrackingPairs() {
    static const QList<Reminder> reminders = manyReminders();
    addPair(
        "plan 200 reminders for 14 days", 4,
        [] {
            benchmark::DoNotOptimize(ReminderPlanner::plan(
                reminders, [](auto) { return QString(); }, UserCalendar::now(), plannedDays));
        },
        [] { placeMoments(reminders); });

    static const QTemporaryDir folder;
    static OMStore store(folder.filePath(QStringLiteral("years.sqlite")));
    fill(store);
    static const OMDay last = OMDay::today();
    static const OMDay first = last.adding(-29);
    static sqlite3* handle = nullptr;
    if (sqlite3_open(store.url().toUtf8().constData(), &handle) != SQLITE_OK)
        std::abort();
    addPair(
        "the calendar of 30 days, 146,000 rows", 8,
        [] { benchmark::DoNotOptimize(CalendarModel::items(store, first, last)); },
        [] { passOver(handle, first.iso().toUtf8(), last.iso().toUtf8()); });

    addPair(
        "a backup of these records", 1.1,
        [] { store.backup(folder.filePath(QStringLiteral("ours.ombackup"))); },
        [] { vacuumInto(handle, folder.filePath(QStringLiteral("bare.ombackup"))); });
}

} // namespace ormiva::bench
