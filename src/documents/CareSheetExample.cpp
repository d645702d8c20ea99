// The example care sheet, and the tool entry that writes it.

#include "CareSheetPDF.h"
#include "OMNotify.h"
#include "RecordFiles.h"
#include "WholeFile.h"

#include <QDir>
#include <QUuid>

#include <cstdio>

namespace ormiva::CareSheetPDF {

namespace {

constexpr int couldNotWrite = 2;

void say(const QString& line) {
    std::fputs((line + u'\n').toUtf8().constData(), stdout);
    std::fflush(stdout);
}

/// A store in the temporary folder, gone with the object.
class PassingStore {
public:
    PassingStore() = default;
    ~PassingStore() {
        m_store.reset();
        const Files files;
        files.removeIfPossible(m_path);
        for (const QString& suffix : RecordFiles::siblingSuffixes())
            files.removeIfPossible(m_path + suffix);
    }
    PassingStore(const PassingStore&) = delete;
    PassingStore& operator=(const PassingStore&) = delete;

    OMStore& open() {
        m_store.emplace(m_path);
        return *m_store;
    }

private:
    QString m_path = QDir::tempPath() + QStringLiteral("/om-example-") +
                     QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper() + QStringLiteral(".sqlite");
    std::optional<OMStore> m_store;
};

void addReminder(OMStore& store, const Pet& pet, ReminderKind kind, qint64 everyDays, const OMDay& start,
                 int hour) {
    Reminder reminder;
    reminder.petID = pet.id;
    reminder.kind = kind;
    reminder.everyDays = everyDays;
    reminder.start = start;
    reminder.hour = hour;
    store.save(reminder);
}

} // namespace

Pet examplePet(OMStore& store) {
    const OMDay today = OMDay::today();
    Pet pet;
    pet.name = QStringLiteral("Sunny (example)");
    pet.speciesID = QStringLiteral("leopard-gecko");
    pet.sex = QStringLiteral("Female");
    pet.birthday = today.adding(-820);
    pet.acquired = today.adding(-760);
    pet.markings = QStringLiteral("Tangerine with dark spots");
    pet.enclosure = QStringLiteral("90 × 45 × 45 cm tank, warm hide on a thermostat-controlled heat mat");
    pet.notes = QStringLiteral("Fictional example pet");
    store.save(pet);

    qint64 day = -98;
    for (const double grams : {61.0, 62.5, 63.0, 64.2, 63.8, 65.1, 66.0, 65.4}) {
        WeightEntry weight;
        weight.petID = pet.id;
        weight.day = today.adding(day);
        weight.grams = grams;
        if (day == 0)
            weight.note = QStringLiteral("after shed");
        store.save(weight);
        day += 14;
    }

    VetVisit visit;
    visit.petID = pet.id;
    visit.day = today.adding(-95);
    visit.clinic = QStringLiteral("Example Exotics Clinic");
    visit.vet = QStringLiteral("Dr. Example");
    visit.reason = QStringLiteral("Yearly check-up");
    visit.findings = QStringLiteral("Healthy (example)");
    visit.followUp = QStringLiteral("Weigh every two weeks");
    store.save(visit);

    addReminder(store, pet, ReminderKind::Feeding, 2, today.adding(-6), 19);
    addReminder(store, pet, ReminderKind::Weigh, 14, today.adding(-10), 9);
    addReminder(store, pet, ReminderKind::Vet, 365, today.adding(-95), 10);
    addReminder(store, pet, ReminderKind::Cleaning, 7, today.adding(-2), 18);
    return pet;
}

std::optional<int> handleExample(const QStringList& arguments) {
    const qsizetype flag = arguments.indexOf(QStringLiteral("--om-example-care-sheet"));
    if (flag < 0 || flag + 1 >= arguments.size())
        return std::nullopt;
    const QString path = arguments.at(flag + 1);
    OMNotify::enabled = false;
    PassingStore passing;
    try {
        OMStore& store = passing.open();
        Pet pet;
        store.db().transaction([&] { pet = examplePet(store); }); // One sync instead of fourteen.
        WholeFile::write(path, make(pet, store, UserCalendar::now()));
    } catch (const Failure& failure) {
        say(QStringLiteral("ERROR|") + failure.description());
        return couldNotWrite;
    }
    say(QStringLiteral("wrote ") + path);
    return 0;
}

} // namespace ormiva::CareSheetPDF
