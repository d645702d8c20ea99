#include "PetPDF.h"

#include "DocumentReader.h"
#include "MadePets.h"
#include "OMInfo.h"
#include "SampleData.h"

namespace ormiva {
namespace {

using namespace ormiva::testing;

class Records : public DocumentTest {
protected:
    DocumentReader read(const Pet& pet) { return DocumentReader(PetPDF::make(pet, made.store)); }
    QString textOf(const Pet& pet) { return read(pet).text(); }
};

const QString standing =
    u"Prepared by the owner with VLK Ormiva. These are the owner's own records, not a medical record or "
    u"a diagnosis."_qs;

TEST_F(Records, OfAnEmptyPetAreComplete) {
    const DocumentReader document = read(addPet(u"Rex"_qs, u"rabbit"_qs));
    EXPECT_EQ(
        document.text(),
        u"Rex — records for the vet Rabbit · Oryctolagus cuniculus "_qs + standing +
            u" Weight (grams) Date Weight (g) Change Note None recorded. Medications (exactly as prescribed by the vet) "_qs +
            OMInfo::doseNote +
            u" Medicine Vet's instructions Prescribed by Dates None recorded. Vet visits Date Clinic / vet "
            u"Reason Findings "
            u"& follow-up None recorded. Feeding log Date Offered Amount Ate? Note None recorded. VLK Ormiva "
            u"· by Ventrel "
            u"(VLK) · ventrel.example · printed 2026-11-21 · page 1"_qs);
    EXPECT_EQ(document.pages(), 1);
    EXPECT_EQ(document.outline(),
              QStringList({u"Weight (grams)"_qs, u"Medications (exactly as prescribed by the vet)"_qs,
                           u"Vet visits"_qs, u"Feeding log"_qs}));
    EXPECT_EQ(document.info(u"Title"_qs), u"Rex — records for the vet"_qs);
    // What follows the profile begins below the place of a photo, photo or no photo.
    EXPECT_GE(document.word(1, u"Prepared"_qs).y(), 160);
    EXPECT_LE(document.word(1, u"Prepared"_qs).y(), 164);
}

TEST_F(Records, HoldEverythingThatWasLogged) {
    Pet pet = addPet(u"Zoë “the Cat” O'Brien — №1"_qs, u"leopard-gecko"_qs);
    pet.sex = u"Female"_qs;
    pet.birthday = OMDay{2024, 5, 6};
    pet.acquired = OMDay{2024, 7, 1};
    pet.markings = u"Tangerine"_qs;
    pet.enclosure = u"90 × 45 × 45 cm"_qs;
    pet.notes = u"Bites; see notes"_qs;
    pet.photo = photo(100, 80);
    made.store.save(pet);
    addWeight(pet, {2026, 8, 1}, 401.5);
    addWeight(pet, {2026, 9, 1}, 421, u"after shed"_qs);
    VetVisit visit;
    visit.petID = pet.id;
    visit.day = {2026, 9, 4};
    visit.clinic = u"Exotics Clinic"_qs;
    visit.vet = u"Dr. Vet"_qs;
    visit.reason = u"Check-up"_qs;
    visit.findings = u"Healthy"_qs;
    visit.followUp = u"Weigh weekly"_qs;
    made.saved(visit);
    visit.id = 0;
    visit.day = {2026, 9, 5};
    visit.clinic = u""_qs;
    visit.findings = u""_qs;
    made.saved(visit);
    Medication medication;
    medication.petID = pet.id;
    medication.name = u"Med A"_qs;
    medication.instructions = u"Word for word"_qs;
    medication.prescribedBy = u"Dr. Who"_qs;
    medication.start = OMDay{2026, 9, 1};
    medication.end = OMDay{2026, 9, 10};
    made.saved(medication);
    medication.id = 0;
    medication.name = u"Med B"_qs;
    medication.start.reset();
    made.saved(medication);
    FeedingEntry meal;
    meal.petID = pet.id;
    meal.day = {2026, 9, 2};
    meal.food = u"Crickets"_qs;
    meal.amount = u"6"_qs;
    meal.note = u"slow"_qs;
    made.saved(meal);
    meal.id = 0;
    meal.day = {2026, 9, 3};
    meal.ate = false;
    made.saved(meal);
    ShedEntry shed;
    shed.petID = pet.id;
    shed.day = {2026, 9, 3};
    shed.complete = false;
    shed.note = u"toes"_qs;
    made.saved(shed);

    const DocumentReader document = read(pet);
    const QString text = document.text();
    for (
        const QString& line : {
            u"Zoë “the Cat” O'Brien — №1 — records for the vet"_qs,
            u"Leopard Gecko · Eublepharis macularius"_qs,
            u"Sex: Female Born: 2024-05-06 (2 yr 6 mo) Acquired: 2024-07-01 Markings: Tangerine Latest "
            u"weight: 421.0 g on "
            u"2026-09-01 Enclosure: 90 × 45 × 45 cm Owner notes: Bites; see notes "_qs +
                standing,
            u"Date Weight (g) Change Note 2026-09-01 421.0 +19.5 g (+4.9%) after shed 2026-08-01 401.5 Medications"_qs,
            u"2026-09-05 Dr. Vet Check-up Follow-up: Weigh weekly"_qs,
            u"Date Offered Amount Ate? Note 2026-09-03 Crickets 6 Refused slow 2026-09-02 Crickets 6 Yes slow"_qs,
            u"Shed log Date Result Note 2026-09-03 Incomplete / stuck toes"_qs,
        })
        EXPECT_TRUE(text.contains(line)) << line.toStdString() << "\n--- in ---\n" << text.toStdString();
    for (const QString& words :
         {u"Exotics Clinic"_qs, u"Dr. Vet"_qs, u"Healthy"_qs, u"Follow-up: Weigh weekly"_qs, u"Med A"_qs,
          u"Word for word"_qs, u"to 2026-09-10"_qs, u"Feeding log"_qs})
        EXPECT_TRUE(text.contains(words)) << words.toStdString();
    EXPECT_EQ(document.pictures(), QStringList({u"100 80 jpeg"_qs}));
    EXPECT_GT(document.picture(1).pixelColor(455, 50).red(), 200);
}

TEST_F(Records, SayShedsOrMoltsByTheKindOfAnimal) {
    const QList<std::tuple<QString, QString>> headings = {{u"bearded-dragon"_qs, u"Shed log"_qs},
                                                          {u"axolotl"_qs, u"Shed log"_qs},
                                                          {u"tarantula"_qs, u"Molt log"_qs},
                                                          {u"hermit-crab"_qs, u"Molt log"_qs},
                                                          {u"budgie"_qs, QString()},
                                                          {u"ferret"_qs, QString()},
                                                          {u"dragon-fly"_qs, QString()}};
    for (const auto& [species, heading] : headings) {
        const Pet pet = species == u"dragon-fly" ? addUnknown() : addPet(u"Rex"_qs, species);
        const QString without = textOf(pet);
        EXPECT_EQ(without.contains(u"Shed log") || without.contains(u"Molt log"), !heading.isEmpty())
            << species.toStdString();
        ShedEntry shed;
        shed.petID = pet.id;
        shed.day = {2026, 9, 3};
        made.saved(shed);
        const QString with = textOf(pet);
        EXPECT_TRUE(with.contains((heading.isEmpty() ? u"Shed log"_qs : heading) +
                                  u" Date Result Note 2026-09-03 Complete"_qs))
            << species.toStdString();
    }
}

TEST_F(Records, OfAnUnknownSpeciesPrintItsId) {
    EXPECT_TRUE(textOf(addUnknown()).startsWith(u"Rex — records for the vet dragon-fly · Prepared"));
}

TEST_F(Records, PrintEveryWeightOfTheSampleFerretInGrams) {
    SampleData::add(made.store);
    OMPrefs::setValue(OMPrefs::weightUnitKey, u"oz"_qs);
    const QList<Pet> pets = made.store.pets();
    const auto pepper = std::ranges::find(pets, u"Pepper (sample)"_qs, &Pet::name);
    ASSERT_NE(pepper, pets.end());
    const QString text = textOf(*pepper);
    for (const QString& grams :
         {u"905.0"_qs, u"910.0"_qs, u"898.0"_qs, u"880.0"_qs, u"862.0"_qs, u"845.0"_qs})
        EXPECT_TRUE(text.contains(grams)) << grams.toStdString();
    EXPECT_TRUE(text.contains(u"your vet will dose"));
    EXPECT_FALSE(text.contains(u" oz"));
    EXPECT_TRUE(text.contains(u"-17.0 g (-2.0%) eating less"));
}

TEST_F(Records, WithOneWeightHaveNoChart) {
    const Pet pet = addPet(u"Rex"_qs, u"rabbit"_qs);
    addWeight(pet, {2026, 9, 1}, 421);
    const QString text = textOf(pet);
    EXPECT_TRUE(text.contains(u"Weight (grams) Date Weight (g) Change Note 2026-09-01 421.0 Medications"));
}

TEST_F(Records, OfDamagedWeightsAreStillPrinted) {
    const Pet pet = addPet(u"Rex"_qs, u"rabbit"_qs);
    for (int i = 0; i < 4; ++i)
        addWeight(pet, OMDay{2026, 9, 1}.adding(i), 421 + i);
    made.store.db().exec(
        u"UPDATE weight SET grams = 9e999 WHERE id = 2; UPDATE weight SET grams = -1e308 WHERE id = 3; "
        u"UPDATE weight SET day = '999999999-01-01' WHERE id = 4"_qs);
    const QString text = textOf(pet);
    EXPECT_TRUE(text.contains(u"421.0"));
    EXPECT_TRUE(text.contains(u"inf"));
}

} // namespace
} // namespace ormiva
