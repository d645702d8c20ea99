#include "CareSheetPDF.h"

#include "CareLibrary.h"
#include "DocumentReader.h"
#include "DoseScanner.h"
#include "MadePets.h"
#include "OMInfo.h"

#include <QDir>

namespace ormiva {
namespace {

using namespace ormiva::testing;

class CareSheet : public DocumentTest {
protected:
    DocumentReader read(const Pet& pet) {
        return DocumentReader(CareSheetPDF::make(pet, made.store, UserCalendar::now()));
    }
    QString textOf(const Pet& pet) { return read(pet).text(); }
    /// Without hyphens, which the reader drops at the ends of lines, and without blanks.
    static QString closed(QString text) { return text.remove(u'-').remove(u' '); }
    void expectIn(const QString& text, const QStringList& lines) {
        for (const QString& line : lines)
            EXPECT_TRUE(text.contains(line)) << line.toStdString() << "\n--- in ---\n"
                                             << text.left(3000).toStdString();
    }
};

const QString ending = u"This app is not a substitute for a veterinarian."_qs;

TEST_F(CareSheet, OfAnEmptyPetSaysWhatIsMissing) {
    const Pet pet = addPet(u"Axel"_qs, u"axolotl"_qs);
    const QString text = textOf(pet);
    expectIn(
        text,
        {
            u"Axel — care sheet Axolotl · Ambystoma mexicanum "_qs +
                CareLibrary::shared().species(u"axolotl"_qs)->summary,
            u"About Axel Name: Axel Species: Axolotl (Ambystoma mexicanum) Age: not recorded Latest weight: "
            u"none logged "
            u"yet Last vet visit: none recorded Weight log (grams) Date Weight (g) Note None recorded. "
            u"Upcoming reminders "
            u"Reminder Repeats Next due For None recorded. Vet-visit reminders No vet check-up reminder is "
            u"set for Axel. "
            u"Add one in My Pets → Axel → Reminders → Vet check-up. Find an exotic-animal vet: ARAV — Find a "
            u"reptile & "
            u"amphibian vet — https://arav.org/find-a-vet/; AEMV — Find an exotic vet — "
            u"https://www.aemv.org/ Axolotl "
            u"care basics Habitat — enclosure & minimum size"_qs,
            OMInfo::doseNote +
                u" Printed 2026-11-21 with VLK Ormiva. Care basics are written in our own words from the "
                u"sources listed in Help → Sources & Credits. VLK Ormiva by Ventrel — "
                u"https://ventrel.example · page "_qs,
        });
}

TEST_F(CareSheet, IsPrintedForEverySpecies) {
    for (const Species& animal : CareLibrary::shared().species()) {
        const DocumentReader document = read(addPet(u"Rex"_qs, animal.id));
        QString text = document.text();
        // Without what stands between the pages.
        for (int page = 1; page <= document.pages(); ++page)
            text.remove(u"VLK Ormiva by Ventrel — https://ventrel.example · page %1"_qs.arg(page));
        text = text.simplified();
        for (const auto& [field, heading] : CareSheetPDF::fields()) {
            const CitedText section = animal.field(field);
            QStringList labels;
            for (const QString& key : section.s)
                labels.append(CareLibrary::shared().source(key)->shortName());
            labels.removeDuplicates();
            const QString printed =
                (heading + u' ' + section.t + u" Sources: "_qs + labels.join(u", "_qs)).simplified();
            EXPECT_TRUE(closed(text).contains(closed(printed)))
                << animal.id.toStdString() << ": " << printed.toStdString();
        }
        EXPECT_EQ(text.contains(animal.limited.value_or(u"no such words"_qs)), animal.limited.has_value());
        EXPECT_EQ(DoseScanner::findings(text), QStringList()) << animal.id.toStdString();
        EXPECT_TRUE(text.contains(ending));
    }
}

TEST_F(CareSheet, TellsOfThePet) {
    Pet pet = addPet(u"Ziggy"_qs, u"bearded-dragon"_qs);
    pet.birthday = OMDay{2024, 9, 21};
    pet.sex = u"Male"_qs;
    pet.acquired = OMDay{2024, 12, 1};
    pet.markings = u"Citrus"_qs;
    pet.enclosure = u"120 cm"_qs;
    made.store.save(pet);
    addWeight(pet, {2026, 11, 20}, 421);
    VetVisit visit;
    visit.petID = pet.id;
    visit.day = {2026, 11, 20};
    visit.clinic = u"Clinic"_qs;
    visit.vet = u"Dr. Vet"_qs;
    visit.reason = u"Check-up"_qs;
    visit.followUp = u"Weigh weekly"_qs;
    visit = made.saved(visit);
    expectIn(
        textOf(pet),
        {u"Age: 2 yr 2 mo (born 2024-09-21) Sex: Male Acquired: 2024-12-01 Latest weight: 421.0 g on "
         u"2026-11-20 "
         u"Markings: Citrus Enclosure: 120 cm Last vet visit: 2026-11-20 (1 day ago) — Clinic, Dr. Vet — Check-up"_qs,
         u"Follow-up from the last visit (2026-11-20): Weigh weekly"_qs});
    for (const auto& [unit, bracket] :
         {std::pair(u"oz"_qs, u" (14.85 oz)"_qs), std::pair(u"lb"_qs, u" (0.928 lb)"_qs),
          std::pair(u"stone"_qs, QString()), std::pair(u"g"_qs, QString())}) {
        OMPrefs::setValue(OMPrefs::weightUnitKey, unit);
        expectIn(textOf(pet), {u"Latest weight: 421.0 g%1 on 2026-11-20"_qs.arg(bracket)});
    }
    visit.day = {2026, 11, 21};
    visit.clinic.clear();
    made.store.save(visit);
    expectIn(textOf(pet), {u"Last vet visit: 2026-11-21 (today) — Dr. Vet — Check-up"_qs});
    visit.day = {2026, 8, 13};
    visit.vet.clear();
    made.store.save(visit);
    expectIn(textOf(pet), {u"Last vet visit: 2026-08-13 (100 days ago) — Check-up"_qs});
}

TEST_F(CareSheet, SaysWhenABirthdayGivesNoAge) {
    Pet pet = addPet(u"Early"_qs, u"rabbit"_qs);
    pet.birthday = OMDay{2027, 3, 1}; // Only a damaged row could say so.
    const QString age = pet.ageText();
    expectIn(textOf(pet), {u"Age: %1 (born 2027-03-01)"_qs.arg(age.isEmpty() ? u"—"_qs : age)});
}

TEST_F(CareSheet, ShowsTheLatestTwelveWeights) {
    const Pet pet = addPet(u"Ziggy"_qs, u"bearded-dragon"_qs);
    for (int i = 0; i < 12; ++i)
        addWeight(pet, OMDay{2026, 10, 1}.adding(i), 401 + i);
    EXPECT_FALSE(textOf(pet).contains(u"Showing the latest"));
    addWeight(pet, {2026, 9, 1}, 333);
    const QString text = textOf(pet);
    expectIn(
        text,
        {u"Date Weight (g) Note 2026-10-12 412.0 2026-10-11 411.0"_qs,
         u"2026-10-01 401.0 Showing the latest 12 of 13 weights. Records for the Vet (PDF) prints them all. Upcoming"_qs});
    EXPECT_FALSE(text.contains(u"333.0"));
}

TEST_F(CareSheet, ListsWhatIsDueInOrder) {
    const Pet ziggy = addPet(u"Ziggy"_qs, u"bearded-dragon"_qs);
    const Pet other = addPet(u"Other"_qs, u"rabbit"_qs);
    addReminder(ziggy.id, ReminderKind::Feeding, 1, {2026, 11, 1}, 9);
    addReminder({}, ReminderKind::Cleaning, 7, {2026, 11, 21}, 18, 5);
    addReminder(other.id, ReminderKind::Water, 1, {2026, 11, 1}, 9);
    Reminder paused = addReminder(ziggy.id, ReminderKind::Uvb, 182, {2026, 11, 1}, 9);
    paused.active = false;
    made.store.save(paused);
    made.store.markDone(
        addReminder(ziggy.id, ReminderKind::Vet, 365, {2020, 1, 1}, 10, 0, u"Yearly visit"_qs),
        {2025, 11, 1});
    addReminder(ziggy.id, ReminderKind::Vet, 1, {2026, 12, 1}, 10);
    const QString text = textOf(ziggy);
    expectIn(text, {u"Reminder Repeats Next due For Yearly visit Every 365 days 2026-11-01 10:00 (OVERDUE) "
                    u"Ziggy Enclosure cleaning "
                    u"Every 7 days 2026-11-21 18:05 All pets Feeding Every day 2026-11-22 09:00 Ziggy Vet "
                    u"check-up Every day "
                    u"2026-12-01 10:00 Ziggy Vet-visit reminders Yearly visit: next due 2026-11-01 10:00 — "
                    u"OVERDUE (every 365 "
                    u"days) Vet check-up: next due 2026-12-01 10:00 (every 1 days) Find"_qs});
    EXPECT_FALSE(text.contains(u"Replace UVB bulb"));
    EXPECT_FALSE(text.contains(u"Fresh water"));
    expectIn(textOf(other), {u"Enclosure cleaning Every 7 days 2026-11-21 18:05 All pets"_qs});
}

TEST_F(CareSheet, OfAnUnknownSpeciesIsWholeWithoutBasics) {
    const QString text = textOf(addUnknown());
    expectIn(text, {u"Rex — care sheet dragon-fly · About Rex Name: Rex Species: dragon-fly Age"_qs,
                    u"Find an exotic-animal vet: https://www.aemv.org/ Care basics This pet's species isn't "
                    u"in the care library, so "
                    u"no care basics can be printed. "_qs +
                        ending});
}

TEST_F(CareSheet, LinksItsAddresses) {
    const DocumentReader document = read(addPet(u"Bird"_qs, u"budgie"_qs));
    QStringList links = document.links();
    links.removeDuplicates();
    links.sort();
    EXPECT_EQ(links, QStringList({u"https://ventrel.example"_qs, u"https://www.aav.org/"_qs,
                                  u"https://www.aemv.org/"_qs}));
    EXPECT_EQ(document.outline(),
              QStringList({u"About Bird"_qs, u"Weight log (grams)"_qs, u"Upcoming reminders"_qs,
                           u"Vet-visit reminders"_qs, u"Budgie care basics"_qs}));
}

TEST_F(CareSheet, LeavesRoomForAPhotoOnly) {
    Pet pet = addUnknown();
    const double without = read(pet).word(1, u"About"_qs).y();
    pet.photo = photo(50, 50);
    EXPECT_LT(without, 120);
    EXPECT_NEAR(read(pet).word(1, u"About"_qs).y(), 42 + 118 + 8, 4);
}

TEST_F(CareSheet, FilesAreNamedAfterThePet) {
    EXPECT_EQ(CareSheetPDF::fileName(addPet(u"Ziggy (sample)"_qs, u"rabbit"_qs)),
              u"Ziggy (sample) - care sheet.pdf"_qs);
}

TEST_F(CareSheet, OfTheExampleIsThatOfSunny) {
    const Pet pet = CareSheetPDF::examplePet(made.store);
    EXPECT_EQ(made.store.counts(), (QMap<QString, qint64>({{u"pet"_qs, 1},
                                                           {u"weight"_qs, 8},
                                                           {u"feeding"_qs, 0},
                                                           {u"shed"_qs, 0},
                                                           {u"vet_visit"_qs, 1},
                                                           {u"medication"_qs, 0},
                                                           {u"reminder"_qs, 4},
                                                           {u"checklist"_qs, 0}})));
    QList<double> grams;
    for (const WeightEntry& weight : made.store.weights(pet.id))
        grams.append(weight.grams);
    EXPECT_EQ(grams, QList<double>({61.0, 62.5, 63.0, 64.2, 63.8, 65.1, 66.0, 65.4}));
    EXPECT_EQ(made.store.weights(pet.id).first().day, (OMDay{2026, 8, 15}));
    EXPECT_EQ(made.store.weights(pet.id).last().note, u"after shed"_qs);
    expectIn(textOf(pet),
             {u"Sunny (example) — care sheet"_qs,
              u"Vet check-up: next due 2027-08-18 10:00 (every 365 days)"_qs,
              u"Follow-up from the last visit (2026-08-18): Weigh every two weeks"_qs,
              u"Markings: Tangerine with dark spots Enclosure: 90 × 45 × 45 cm tank, warm hide on a "
              u"thermostat-controlled heat mat"_qs});
}

TEST_F(CareSheet, OfTheExampleIsWrittenByTheTool) {
    const TemporaryFolder folder;
    const QString path = folder.file(u"out.pdf"_qs);
    ::testing::internal::CaptureStdout();
    EXPECT_EQ(CareSheetPDF::handleExample({u"--om-example-care-sheet"_qs, path}), 0);
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), (u"wrote "_qs + path + u'\n').toStdString());
    EXPECT_TRUE(DocumentReader(folder.read(u"out.pdf"_qs)).text().contains(u"Sunny (example)"));
    ::testing::internal::CaptureStdout();
    EXPECT_EQ(CareSheetPDF::handleExample({u"--om-example-care-sheet"_qs, folder.file(u"none/out.pdf"_qs)}),
              2);
    EXPECT_TRUE(QString::fromStdString(::testing::internal::GetCapturedStdout())
                    .startsWith(u"ERROR|Could not write “"));
    EXPECT_EQ(CareSheetPDF::handleExample({u"--om-example-care-sheet"_qs}), std::nullopt);
    EXPECT_EQ(CareSheetPDF::handleExample({u"--selftest"_qs}), std::nullopt);
    EXPECT_EQ(QDir(QDir::tempPath()).entryList({u"om-example-*"_qs}), QStringList());
}

} // namespace
} // namespace ormiva
