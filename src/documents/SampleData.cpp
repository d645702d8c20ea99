#include "SampleData.h"

namespace ormiva::SampleData {

namespace {

Pet samplePet(const QString& name, const QString& speciesID, const QString& sex, const OMDay& birthday) {
    Pet pet;
    pet.name = name;
    pet.speciesID = speciesID;
    pet.sex = sex;
    pet.birthday = birthday;
    pet.notes = QStringLiteral("Sample pet");
    return pet;
}

/// Weights every `step` days, the last one today.
void addWeights(OMStore& store, const Pet& pet, int step, std::initializer_list<double> grams,
                const QString& lastNote = {}) {
    qint64 day = -step * (static_cast<qint64>(grams.size()) - 1);
    for (const double value : grams) {
        WeightEntry weight;
        weight.petID = pet.id;
        weight.day = OMDay::today().adding(day);
        weight.grams = value;
        if (day == 0)
            weight.note = lastNote;
        store.save(weight);
        day += step;
    }
}

void addReminder(OMStore& store, std::optional<qint64> petID, ReminderKind kind, qint64 everyDays,
                 qint64 from, int hour, int minute = 0) {
    Reminder reminder;
    reminder.petID = petID;
    reminder.kind = kind;
    reminder.everyDays = everyDays;
    reminder.start = OMDay::today().adding(from);
    reminder.hour = hour;
    reminder.minute = minute;
    store.save(reminder);
}

void addMeals(OMStore& store, const Pet& pet) {
    for (int i = 0; i < 5; ++i) {
        FeedingEntry meal;
        meal.petID = pet.id;
        meal.day = OMDay::today().adding(-i);
        const bool crickets = i % 2 == 0;
        meal.food =
            crickets ? QStringLiteral("Dusted crickets + greens") : QStringLiteral("Greens and squash");
        meal.amount = crickets ? QStringLiteral("6 crickets") : QStringLiteral("1 bowl");
        meal.ate = i != 1;
        store.save(meal);
    }
}

void addShed(OMStore& store, const Pet& pet, qint64 day, bool complete, const QString& note) {
    ShedEntry shed;
    shed.petID = pet.id;
    shed.day = OMDay::today().adding(day);
    shed.complete = complete;
    shed.note = note;
    store.save(shed);
}

Pet addZiggy(OMStore& store) {
    const OMDay today = OMDay::today();
    Pet ziggy = samplePet(QStringLiteral("Ziggy (sample)"), QStringLiteral("bearded-dragon"),
                          QStringLiteral("Male"), today.adding(-700));
    ziggy.acquired = today.adding(-600);
    ziggy.markings = QStringLiteral("Citrus morph");
    ziggy.enclosure = QStringLiteral("120 × 60 × 60 cm vivarium, T5 UVB, basking lamp on a thermostat");
    store.save(ziggy);
    addWeights(store, ziggy, 14, {402, 405, 409, 411, 410, 414, 418, 417, 421});
    addMeals(store, ziggy);
    addShed(store, ziggy, -40, true, QString());
    addShed(store, ziggy, -3, false, QStringLiteral("A little stuck on two toes"));
    return ziggy;
}

Pet addPepper(OMStore& store) {
    const OMDay today = OMDay::today();
    Pet pepper = samplePet(QStringLiteral("Pepper (sample)"), QStringLiteral("ferret"),
                           QStringLiteral("Female"), today.adding(-1100));
    pepper.markings = QStringLiteral("Sable");
    store.save(pepper);
    addWeights(store, pepper, 6, {905, 910, 898, 880, 862, 845}, QStringLiteral("eating less"));

    VetVisit visit;
    visit.petID = pepper.id;
    visit.day = today.adding(-20);
    visit.clinic = QStringLiteral("Sample Exotic Clinic");
    visit.vet = QStringLiteral("Dr. Sample");
    visit.reason = QStringLiteral("Yearly check-up");
    visit.findings = QStringLiteral("Healthy (sample)");
    visit.followUp = QStringLiteral("Weigh weekly");
    store.save(visit);

    Medication medication;
    medication.petID = pepper.id;
    medication.name = QStringLiteral("Sample medicine");
    medication.instructions = QStringLiteral("Exactly as written on the vet's label (sample)");
    medication.prescribedBy = QStringLiteral("Dr. Sample");
    medication.start = today.adding(-20);
    medication.end = today.adding(-10);
    store.save(medication);
    return pepper;
}

void addKiwi(OMStore& store) {
    Pet kiwi = samplePet(QStringLiteral("Kiwi (sample)"), QStringLiteral("budgie"), QStringLiteral("Unknown"),
                         OMDay::today().adding(-400));
    store.save(kiwi);
    addWeights(store, kiwi, 7, {36.0, 35.5, 36.2});
}

} // namespace

void add(OMStore& store) {
    const Pet ziggy = addZiggy(store);
    const Pet pepper = addPepper(store);
    addKiwi(store);
    addReminder(store, ziggy.id, ReminderKind::Feeding, 1, -10, 9);
    addReminder(store, ziggy.id, ReminderKind::Uvb, 182, -170, 10);
    addReminder(store, std::nullopt, ReminderKind::Cleaning, 7, -3, 18);
    addReminder(store, pepper.id, ReminderKind::Weigh, 7, -8, 8, 30);
}

} // namespace ormiva::SampleData
