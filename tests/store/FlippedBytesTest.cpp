// A records' file with bytes that a dying disk turned over: whatever they are, it is refused or read, and
// nothing crashes.

#include "FixedCalendar.h"
#include "MadeStore.h"

#include <random>

namespace ormiva {
namespace {

using testing::FixedCalendar;
using testing::MadeStore;
using testing::TemporaryFolder;
using testing::utc;

constexpr qsizetype pageSize = 4096;

/// A sound file with rows and overflow pages in every table.
QByteArray soundFile() {
    MadeStore made;
    for (int i = 0; i < 4; ++i) {
        Pet pet = made.addPet(u"Pet %1"_qs.arg(i));
        pet.photo = QByteArray(15000, static_cast<char>(i));
        pet.notes = u"note "_qs.repeated(qsizetype(i) * 20);
        pet.birthday = OMDay{2024, 2, 3};
        made.store.save(pet);
        for (int k = 1; k <= 8; ++k) {
            WeightEntry weight;
            weight.grams = 100 + k;
            FeedingEntry feeding;
            feeding.food = u"hay and greens"_qs;
            ShedEntry shed;
            VetVisit visit;
            visit.findings = u"nothing unusual "_qs.repeated(k);
            visit.reason = u"check-up"_qs;
            Medication medicine;
            medicine.name = u"Eye drops"_qs;
            Reminder reminder;
            weight.petID = feeding.petID = shed.petID = visit.petID = medicine.petID = pet.id;
            reminder.petID = pet.id;
            made.saved(weight);
            made.saved(feeding);
            made.saved(shed);
            made.saved(visit);
            made.saved(medicine);
            made.saved(reminder);
            made.store.setChecked(pet.id, {2026, 3, k}, u"Fresh water"_qs, true);
        }
    }
    made.store.db().close();
    return made.folder.read(u"Pets.sqlite"_qs);
}

/// Reads all that screens read; gives the number of records found.
qsizetype readEverything(OMStore& store) {
    qsizetype found = store.reminders().size();
    for (const Pet& pet : store.pets()) {
        found += 1 + pet.ageText().size() / 100;
        found += store.pet(pet.id).has_value() ? 1 : 0;
        for (const WeightEntry& weight : store.weights(pet.id))
            found += weight.day.display().isEmpty() ? 0 : 1;
        for (const Medication& medicine : store.medications(pet.id))
            found += medicine.isCurrent() ? 1 : 0;
        found += store.feedings(pet.id).size() + store.sheds(pet.id).size() + store.visits(pet.id).size();
        found += store.reminders(pet.id).size() + store.checked(pet.id, {2026, 3, 7}).size();
    }
    EXPECT_EQ(store.counts().size(), 8);
    EXPECT_EQ(store.digest().size(), 64);
    return found;
}

TEST(FlippedBytes, NeverCrashReading) {
    const FixedCalendar calendar(utc(2026, 3, 7));
    const QByteArray sound = soundFile();
    ASSERT_GT(sound.size(), 20 * pageSize);
    const TemporaryFolder folder;
    qsizetype whole = 0;
    {
        OMStore store(folder.write(u"sound.sqlite"_qs, sound));
        whole = readEverything(store);
        ASSERT_GT(whole, 4 * 8 * 5);
    }
    std::mt19937 random(8);
    int complete = 0;
    int partial = 0;
    for (int i = 0; i < 300; ++i) {
        QByteArray damaged = sound;
        for (unsigned flips = 1 + random() % 8; flips > 0; --flips) {
            const auto at =
                pageSize + static_cast<qsizetype>(random() % static_cast<unsigned>(sound.size() - pageSize));
            // Most of it is the inside of photos; every second time the head of a page is hit instead.
            const qsizetype place =
                random() % 2 ? at : at - at % pageSize + static_cast<qsizetype>(random() % 40);
            damaged[place] = static_cast<char>(damaged.at(place) ^ static_cast<char>(1U << (random() % 8)));
        }
        const QString path = folder.write(u"damaged.sqlite"_qs, damaged);
        try {
            OMStore store(path);
            (readEverything(store) == whole ? complete : partial) += 1;
        } catch (const OMError& error) {
            EXPECT_EQ(error.kind(), OMError::Case::Database);
            EXPECT_EQ(folder.read(u"damaged.sqlite"_qs), damaged) << "a refused file was changed";
        }
    }
    EXPECT_GT(complete, 0);
    EXPECT_GT(partial, 0);
}

} // namespace
} // namespace ormiva
