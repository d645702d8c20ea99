// The child processes of the relaunch section.

#include "Numbers.h"
#include "OMNotify.h"
#include "OMPrefs.h"
#include "OMSelfTest.h"
#include "OMSetup.h"
#include "OMStore.h"
#include "OMTestRun.h"
#include "StoreSchema.h"
#include "VLKThemes.h"
#include "VLZoom.h"

#include <QBuffer>
#include <QImage>

namespace ormiva::OMSelfTest {

namespace {

constexpr int couldNotOpen = 3;
constexpr int couldNotWork = 4;

QByteArray testPhoto() {
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    QBuffer bytes;
    image.save(&bytes, "PNG");
    return bytes.data();
}

void writeEverything(OMStore& store) {
    Pet pet;
    pet.name = QStringLiteral("Relaunch Rex");
    pet.speciesID = QStringLiteral("leopard-gecko");
    pet.sex = QStringLiteral("Male");
    pet.birthday = OMDay{2024, 5, 6};
    pet.photo = testPhoto();
    store.save(pet);

    for (const auto& [day, grams] : relaunchWeights()) {
        WeightEntry weight;
        weight.petID = pet.id;
        weight.day = day;
        weight.grams = grams;
        store.save(weight);
    }
    FeedingEntry feeding;
    feeding.petID = pet.id;
    feeding.day = {2026, 9, 2};
    feeding.food = QStringLiteral("Mealworms");
    store.save(feeding);
    ShedEntry shed;
    shed.petID = pet.id;
    shed.day = {2026, 9, 3};
    shed.complete = false;
    store.save(shed);
    VetVisit visit;
    visit.petID = pet.id;
    visit.day = {2026, 9, 4};
    visit.clinic = QStringLiteral("Exotics Clinic");
    store.save(visit);
    Medication medication;
    medication.petID = pet.id;
    medication.name = QStringLiteral("Med A");
    medication.instructions = QStringLiteral("As the label says");
    store.save(medication);
    Reminder reminder;
    reminder.petID = pet.id;
    reminder.kind = ReminderKind::Uvb;
    reminder.everyDays = 182;
    reminder.start = {2026, 9, 1};
    reminder.hour = 10;
    reminder.minute = 15;
    store.save(reminder);
    store.markDone(reminder, {2026, 9, 5});
    store.setChecked(pet.id, {2026, 9, 5}, QStringLiteral("Water"), true);
}

QString truth(bool value) {
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

QString iso(const std::optional<OMDay>& day) {
    return day ? day->iso() : QString();
}

QString weightsLine(OMStore& store, const Pet& pet) {
    QStringList pairs;
    for (const WeightEntry& weight : store.weights(pet.id))
        pairs.append(weight.day.iso() + u'=' + Numbers::shortest(weight.grams));
    return QStringLiteral("WEIGHTS|") + pairs.join(u',');
}

void printRecords(OMStore& store) {
    const QMap<QString, qint64> counts = store.counts();
    for (const QString& table : StoreSchema::tables())
        printLine(table + u'|' + QString::number(counts.value(table)));
    const QList<Pet> pets = store.pets();
    if (!pets.isEmpty()) {
        const Pet& pet = pets.first();
        printLine(QStringList{QStringLiteral("PET"), pet.name, pet.speciesID, pet.sex, iso(pet.birthday),
                              truth(pet.photo.has_value())}
                      .join(u'|'));
        printLine(weightsLine(store, pet));
        for (const Reminder& reminder : store.reminders(pet.id))
            printLine(QStringLiteral("REMINDER|%1|%2|%3:%4|%5|%6")
                          .arg(info(reminder.kind).id)
                          .arg(reminder.everyDays)
                          .arg(reminder.hour)
                          .arg(reminder.minute)
                          .arg(iso(reminder.lastDone), truth(reminder.active)));
        const QList<Medication> medications = store.medications(pet.id);
        if (!medications.isEmpty())
            printLine(
                QStringLiteral("MED|%1|%2").arg(medications.first().name, medications.first().instructions));
    }
    printLine(QStringLiteral("DIGEST|") + store.digest());
}

int childWrite(const QString& path) {
    std::unique_ptr<OMStore> store;
    try {
        store = std::make_unique<OMStore>(path);
    } catch (const Failure&) {
        return couldNotOpen;
    }
    try {
        writeEverything(*store);
    } catch (const Failure& failure) {
        printLine(QStringLiteral("ERROR|") + failure.description());
        return couldNotWork;
    }
    printLine(QStringLiteral("DIGEST|") + store->digest());
    return 0;
}

int childRead(const QString& path) {
    try {
        OMStore store(path);
        printRecords(store);
        return 0;
    } catch (const Failure&) {
        return couldNotOpen;
    }
}

int childPrefs() {
    OMSetup::configure();
    printLine(QStringLiteral("THEME|") + VLKThemes::currentID());
    printLine(QStringLiteral("ZOOM|") + Numbers::shortest(VLZoom::value()));
    printLine(QStringLiteral("UNIT|") + OMPrefs::weightUnit());
    return 0;
}

/// The argument behind `flag`.
std::optional<QString> pathBehind(const QStringList& arguments, const QString& flag) {
    const qsizetype at = arguments.indexOf(flag);
    return at < 0 || at + 1 >= arguments.size() ? std::nullopt : std::optional(arguments.at(at + 1));
}

} // namespace

std::optional<int> handleChild(const QStringList& arguments) {
    if (const auto path = pathBehind(arguments, QStringLiteral("--om-child-write"))) {
        OMNotify::enabled = false;
        return childWrite(*path);
    }
    if (const auto path = pathBehind(arguments, QStringLiteral("--om-child-read")))
        return childRead(*path);
    if (arguments.contains(QStringLiteral("--om-child-prefs")))
        return childPrefs();
    return std::nullopt;
}

} // namespace ormiva::OMSelfTest
