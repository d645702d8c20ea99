// The self-test's sections on the keeper's records, all on scratch files.

#include "Numbers.h"
#include "OMSelfTest.h"
#include "OMStore.h"
#include "ReminderPlanner.h"
#include "SelfTestSections.h"

#include <QDir>
#include <QFile>

namespace ormiva::OMSelfTest {

namespace {

/// Runs checks on a store; a failure that isn't expected is a failed check.
void onStore(OMTestRun& run, const QString& path, const std::function<void(OMStore&)>& checks) {
    try {
        OMStore store(path);
        checks(store);
    } catch (const Failure& failure) {
        run.check(
            false,
            QStringLiteral("the records in %1 can be worked with: %2").arg(path, failure.description()));
    }
}

/// The sentence with which `body` is refused; empty when it isn't.
QString refusal(const std::function<void()>& body) {
    try {
        body();
    } catch (const Failure& failure) {
        return failure.description();
    }
    return {};
}

Pet savedPet(OMStore& store, const QString& name) {
    Pet pet;
    pet.name = name;
    pet.speciesID = QStringLiteral("leopard-gecko");
    store.save(pet);
    return pet;
}

WeightEntry savedWeight(OMStore& store, const Pet& pet, const OMDay& day, double grams) {
    WeightEntry weight;
    weight.petID = pet.id;
    weight.day = day;
    weight.grams = grams;
    store.save(weight);
    return weight;
}

Reminder reminderFrom(const OMDay& start, qint64 everyDays, qint64 hour) {
    Reminder reminder;
    reminder.id = 1;
    reminder.start = start;
    reminder.everyDays = everyDays;
    reminder.hour = hour;
    return reminder;
}

QString lineOf(const QString& output, const QString& start) {
    for (const QString& line : output.split(u'\n'))
        if (line.startsWith(start))
            return line;
    return {};
}

} // namespace

void recordTests(OMTestRun& run, const QString& scratch) {
    onStore(run, scratch + QStringLiteral("/records.sqlite"), [&](OMStore& store) {
        run.check(refusal([&] {
                      Pet nameless;
                      store.save(nameless);
                  }) == QStringLiteral("Please give your pet a name."),
                  QStringLiteral("a pet without a name is refused with a sentence"));
        Pet pet = savedPet(store, QStringLiteral("Rex"));
        run.check(pet.id > 0 && store.pet(pet.id) == pet,
                  QStringLiteral("a new pet is stored and read back"));
        pet.name = QStringLiteral("Rexy");
        store.save(pet);
        run.check(store.pets() == QList<Pet>{pet}, QStringLiteral("an edited pet is stored"));
        const WeightEntry weight = savedWeight(store, pet, {2026, 8, 1}, 401.5);
        run.check(store.weights(pet.id) == QList<WeightEntry>{weight},
                  QStringLiteral("a weight is stored exactly"));
        run.check(!refusal([&] {
                       savedWeight(store, pet, {2026, 8, 1}, 0);
                   }).isEmpty(),
                  QStringLiteral("a weight of nothing is refused"));
        const int revision = store.revision();
        store.setChecked(pet.id, {2026, 8, 1}, QStringLiteral("Water"), true);
        run.check(store.checked(pet.id, {2026, 8, 1}).contains(QStringLiteral("Water")) &&
                      store.revision() == revision + 1,
                  QStringLiteral("a tick is stored and announced"));
        store.remove<Pet>(pet.id);
        const QMap<QString, qint64> counts = store.counts();
        run.check(std::all_of(counts.begin(), counts.end(), [](qint64 count) { return count == 0; }),
                  QStringLiteral("a deleted pet takes all its records with it"));
        run.check(refusal([&] { store.save(pet); }) == OMError::notFound().description(),
                  QStringLiteral("a record that is gone can't be saved"));
    });
}

void relaunchTests(OMTestRun& run, const QString& scratch) {
    const QString path = scratch + QStringLiteral("/relaunch.sqlite");
    const auto [written, writer] = runChild({QStringLiteral("--om-child-write"), path});
    run.check(written == 0,
              QStringLiteral("first launch writes every kind of record (exit %1)").arg(written));
    const auto [read, reader] = runChild({QStringLiteral("--om-child-read"), path});
    run.check(read == 0, QStringLiteral("second launch opens the same file (exit %1)").arg(read));

    const QStringList counts = {QStringLiteral("pet|1"),       QStringLiteral("weight|3"),
                                QStringLiteral("feeding|1"),   QStringLiteral("shed|1"),
                                QStringLiteral("vet_visit|1"), QStringLiteral("medication|1"),
                                QStringLiteral("reminder|1"),  QStringLiteral("checklist|1")};
    const QStringList lines = reader.split(u'\n');
    run.check(std::ranges::all_of(counts, [&](const QString& line) { return lines.contains(line); }),
              QStringLiteral("every record type is there after relaunch (8 tables)"));
    run.check(lines.contains(QStringLiteral("PET|Relaunch Rex|leopard-gecko|Male|2024-05-06|true")),
              QStringLiteral("the pet's profile and photo came back"));
    QStringList weights;
    for (const auto& [day, grams] : relaunchWeights())
        weights.append(day.iso() + u'=' + Numbers::shortest(grams));
    run.check(lineOf(reader, QStringLiteral("WEIGHTS|")) == QStringLiteral("WEIGHTS|") + weights.join(u','),
              QStringLiteral("the weight log came back exactly (dates and grams)"));
    run.check(lines.contains(QStringLiteral("REMINDER|uvb|182|10:15|2026-09-05|true")),
              QStringLiteral("the reminder came back with its interval, time and last-done day"));
    run.check(lines.contains(QStringLiteral("MED|Med A|As the label says")),
              QStringLiteral("medicines came back as written"));
    const QString digest = lineOf(writer, QStringLiteral("DIGEST|"));
    run.check(!digest.isEmpty() && digest == lineOf(reader, QStringLiteral("DIGEST|")),
              QStringLiteral("byte-for-byte the same records after relaunch (fingerprint matches)"));
}

void reminderTests(OMTestRun& run, const QString& scratch) {
    const OMDay today = OMDay::today();
    const auto at = [](const OMDay& day, int hour) { return UserCalendar::at(day.date(), hour, 0); };
    using ReminderPlanner::nextDue;
    using ReminderPlanner::plan;

    const Reminder daily = reminderFrom(today, 1, 9);
    run.check(nextDue(daily, at(today, 10)) == at(today.adding(1), 9),
              QStringLiteral("a daily reminder whose time is past is due tomorrow"));
    run.check(nextDue(reminderFrom(today, 1, 18), at(today, 10)) == at(today, 18),
              QStringLiteral("one whose time is ahead is due today"));
    run.check(nextDue(daily, at(today, 9)) == at(today, 9) &&
                  !ReminderPlanner::isOverdue(daily, at(today, 9)),
              QStringLiteral("at the very moment it is due and not late"));
    Reminder done = reminderFrom(today.adding(-30), 3, 9);
    done.lastDone = today.adding(-5);
    run.check(nextDue(done, at(today, 10)) == at(today.adding(-2), 9) &&
                  ReminderPlanner::isOverdue(done, at(today, 10)),
              QStringLiteral("done 5 days ago, every 3 days: overdue for 2 days"));
    done.lastDone = today;
    run.check(nextDue(done, at(today, 10)) == at(today.adding(3), 9),
              QStringLiteral("marked done today, every 3 days: due in 3 days"));
    Reminder paused = daily;
    paused.active = false;
    run.check(!nextDue(paused, at(today, 10)) && !ReminderPlanner::isOverdue(paused, at(today, 10)),
              QStringLiteral("a paused reminder is never due"));
    const auto noName = [](std::optional<qint64>) { return QString(); };
    run.check(plan({daily}, noName, at(today, 10)).size() == 14,
              QStringLiteral("a daily reminder is planned 14 times in two weeks"));
    const auto five = plan({daily, daily, daily, daily, daily}, noName, at(today, 10));
    run.check(five.size() == 60 && std::ranges::is_sorted(five, {}, &ReminderRequest::fire),
              QStringLiteral("five of them are cut to the 60 earliest"));
    const auto named = plan(
        {daily}, [](std::optional<qint64>) { return QStringLiteral("Rex"); }, at(today, 10));
    run.check(!named.isEmpty() && named.first().title == QStringLiteral("Feeding — Rex") &&
                  named.first().body == QStringLiteral("Due now · VLK Ormiva"),
              QStringLiteral("a notification names the reminder and the pet"));

    onStore(run, scratch + QStringLiteral("/reminders.sqlite"), [&](OMStore& store) {
        Reminder stored = reminderFrom(today, 3, 9);
        stored.id = 0;
        store.save(stored);
        store.markDone(stored, today);
        const QList<Reminder> all = store.reminders();
        run.check(all.size() == 1 && all.first().lastDone == today,
                  QStringLiteral("marking a reminder done is stored"));
    });
}

void backupTests(OMTestRun& run, const QString& scratch) {
    const QString folder = scratch + QStringLiteral("/it's a backup");
    QDir().mkpath(folder);
    const QString backup = folder + QStringLiteral("/copy.ombackup");
    onStore(run, folder + QStringLiteral("/live.sqlite"), [&](OMStore& store) {
        const Pet pet = savedPet(store, QStringLiteral("Rex"));
        savedWeight(store, pet, {2026, 8, 1}, 401.5);
        store.backup(backup);
        const QString digest = store.digest();
        const QMap<QString, qint64> counts = OMStore::inspectBackup(backup);
        run.check(counts.size() == 8 && counts.value(QStringLiteral("pet")) == 1 &&
                      counts.value(QStringLiteral("weight")) == 1,
                  QStringLiteral("a backup passes inspection and tells its rows"));
        savedPet(store, QStringLiteral("Newer"));
        const QString changed = store.digest();

        QFile text(folder + QStringLiteral("/text.ombackup"));
        const QByteArray words("This is not a database, whatever its name says.");
        run.check(text.open(QIODevice::WriteOnly) && text.write(words) == words.size() && text.flush(),
                  QStringLiteral("a text file can be made"));
        text.close();
        run.check(refusal([&] { store.restore(text.fileName()); }) ==
                          QStringLiteral("This file can't be restored: it is not a database file.") &&
                      store.digest() == changed &&
                      QDir(folder).entryList({QStringLiteral("Before restore *")}).isEmpty(),
                  QStringLiteral("a file that is no backup is refused before anything is touched"));
        run.check(refusal([&] { store.backup(store.url()); }) ==
                      QStringLiteral("Please choose another place: this file holds your records."),
                  QStringLiteral("a backup never goes over the records"));

        const QString safetyCopy = store.restore(backup);
        run.check(store.digest() == digest,
                  QStringLiteral("a restore brings back exactly what was backed up"));
        run.check(OMStore(safetyCopy).digest() == changed,
                  QStringLiteral("the records from before are in the safety copy"));
        run.check(savedPet(store, QStringLiteral("Later")).id > 0,
                  QStringLiteral("the store works on after a restore"));
    });
}

} // namespace ormiva::OMSelfTest
