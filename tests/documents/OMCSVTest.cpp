#include "OMCSV.h"

#include "MadePets.h"
#include "SampleData.h"

#include <random>

namespace ormiva {
namespace {

using namespace ormiva::testing;

TEST(CSVField, IsQuotedWhenItMustBe) {
    const QList<std::pair<QString, QString>> cases = {
        {u""_qs, u""_qs},
        {u"plain — ünïcode 中"_qs, u"plain — ünïcode 中"_qs},
        {u"a,b"_qs, u"\"a,b\""_qs},
        {u"say \"hi\""_qs, u"\"say \"\"hi\"\"\""_qs},
        {u"\""_qs, u"\"\"\"\""_qs},
        {u"two\nlines"_qs, u"\"two\nlines\""_qs},
        {u"two\rlines"_qs, u"\"two\rlines\""_qs},
        {u"two\r\nlines"_qs, u"two\r\nlines"_qs}, // One character to a reader, and neither of the two.
        {u"a\r\nb,c"_qs, u"\"a\r\nb,c\""_qs},
        {u"a\r\n\nb"_qs, u"\"a\r\n\nb\""_qs},
        {u",\u0301"_qs, u",\u0301"_qs}, // A comma with an accent is another character.
        {u" blank "_qs, u" blank "_qs},
        {u"a;b\tc"_qs, u"a;b\tc"_qs},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(OMCSV::field(text), expected) << text.toStdString();
    EXPECT_EQ(OMCSV::line({u"a"_qs, u"b,c"_qs, u""_qs}), u"a,\"b,c\","_qs);
    EXPECT_EQ(OMCSV::line({}), QString());
}

TEST(CSVParse, WalksTheText) {
    const QList<std::pair<QString, QList<QStringList>>> cases = {
        {u""_qs, {}},
        {u"a"_qs, {{u"a"_qs}}},
        {u"a,b\r\nc"_qs, {{u"a"_qs, u"b"_qs}, {u"c"_qs}}},
        {u"a\n"_qs, {{u"a"_qs}}},
        {u"a,\n"_qs, {{u"a"_qs, u""_qs}}},
        {u"a,"_qs, {{u"a"_qs, u""_qs}}},
        {u"\n\n"_qs, {{u""_qs}, {u""_qs}}},
        {u"\"a,b\"\"c\"\r\nd"_qs, {{u"a,b\"c"_qs}, {u"d"_qs}}},
        {u"x\"y,z\"w"_qs, {{u"xy,zw"_qs}}},
        {u"\"a\"b"_qs, {{u"ab"_qs}}},
        {u"\"a\r\nb\""_qs, {{u"a\r\nb"_qs}}},
        {u"a\rb"_qs, {{u"ab"_qs}}},
        {u"\"open"_qs, {{u"open"_qs}}},
        {u"\"end\""_qs, {{u"end"_qs}}},
        {u"\"\""_qs, {}},
        {u"\"\",\"\""_qs, {{u""_qs, u""_qs}}},
        {u"🦎,\"🦎\"\"\""_qs, {{u"🦎"_qs, u"🦎\""_qs}}},
    };
    for (const auto& [text, rows] : cases)
        EXPECT_EQ(OMCSV::parse(text), rows) << text.toStdString();
}

TEST(CSVParse, GivesBackWhatLineWrote) {
    std::mt19937 engine(5);
    const QString alphabet = u"ab,\"\n\r ;é中"_qs;
    for (int i = 0; i < 20'000; ++i) {
        QStringList row;
        for (int n = std::uniform_int_distribution(2, 5)(engine); n > 0; --n) {
            QString field;
            for (int length = std::uniform_int_distribution(0, 6)(engine); length > 0; --length)
                field +=
                    alphabet.at(std::uniform_int_distribution<qsizetype>(0, alphabet.size() - 1)(engine));
            if (!field.contains(u"\r\n")) // Not quoted for itself, as told.
                row.append(field);
        }
        if (row.size() < 2)
            continue;
        ASSERT_EQ(OMCSV::parse(OMCSV::line(row) + u"\r\n"_qs), QList<QStringList>({row}));
    }
}

class CSV : public DocumentTest {};

TEST_F(CSV, OfAnEmptyPetHasTwoRows) {
    EXPECT_EQ(OMCSV::petRecords(addPet(u"Rex"_qs, u"rabbit"_qs), made.store),
              u"Section,Date,Item,Detail,Notes\r\nPet,,Rex,Rabbit (Oryctolagus cuniculus),\r\n"_qs);
    EXPECT_EQ(OMCSV::petRecords(addUnknown(), made.store),
              u"Section,Date,Item,Detail,Notes\r\nPet,,Rex,dragon-fly (),\r\n"_qs);
}

TEST_F(CSV, HoldsEveryRecordInItsOrder) {
    Pet pet = addPet(u"Rex, \"the\" cat"_qs, u"leopard-gecko"_qs);
    pet.birthday = OMDay{2024, 5, 6};
    pet.sex = u"Male"_qs;
    pet.markings = u"Spots"_qs;
    made.store.save(pet);
    addWeight(pet, {2026, 9, 1}, 421, u"a note"_qs);
    addWeight(pet, {2026, 8, 1}, 1250);
    FeedingEntry meal;
    meal.petID = pet.id;
    meal.day = {2026, 9, 2};
    meal.food = u"Crickets"_qs;
    meal.amount = u"6"_qs;
    made.saved(meal);
    meal.id = 0;
    meal.ate = false;
    meal.amount.clear();
    meal.note = u"sulky"_qs;
    made.saved(meal);
    ShedEntry shed;
    shed.petID = pet.id;
    shed.day = {2026, 9, 3};
    shed.complete = false;
    shed.note = u"toes"_qs;
    made.saved(shed);
    VetVisit visit;
    visit.petID = pet.id;
    visit.day = {2026, 9, 4};
    visit.clinic = u"Clinic"_qs;
    visit.vet = u"Dr. Vet"_qs;
    visit.reason = u"Check-up"_qs;
    visit.findings = u"Healthy"_qs;
    visit.followUp = u"Weigh weekly"_qs;
    made.saved(visit);
    visit.id = 0;
    visit.findings.clear();
    visit.vet.clear();
    made.saved(visit);
    Medication medication;
    medication.petID = pet.id;
    medication.name = u"Med A"_qs;
    medication.instructions = u"Line one\nline two"_qs;
    medication.prescribedBy = u"Dr. Who"_qs;
    medication.start = OMDay{2026, 9, 1};
    medication.end = OMDay{2026, 9, 10};
    made.saved(medication);
    medication.id = 0;
    medication.prescribedBy.clear();
    medication.start.reset();
    made.saved(medication);
    OMPrefs::setValue(OMPrefs::weightUnitKey, u"lb"_qs);
    const QString document = OMCSV::petRecords(pet, made.store);
    const QString medicationRow = u"Medication (as prescribed by vet)"_qs;
    EXPECT_EQ(OMCSV::parse(document),
              QList<QStringList>({
                  {u"Section"_qs, u"Date"_qs, u"Item"_qs, u"Detail"_qs, u"Notes"_qs},
                  {u"Pet"_qs, u"2024-05-06"_qs, u"Rex, \"the\" cat"_qs,
                   u"Leopard Gecko (Eublepharis macularius)"_qs, u"Male; Spots"_qs},
                  {u"Weight"_qs, u"2026-08-01"_qs, u"1250.0 g"_qs, u"2.756 lb"_qs, u""_qs},
                  {u"Weight"_qs, u"2026-09-01"_qs, u"421.0 g"_qs, u"0.928 lb"_qs, u"a note"_qs},
                  {u"Feeding"_qs, u"2026-09-02"_qs, u"Crickets"_qs, u" (refused)"_qs, u"sulky"_qs},
                  {u"Feeding"_qs, u"2026-09-02"_qs, u"Crickets"_qs, u"6"_qs, u""_qs},
                  {u"Shed"_qs, u"2026-09-03"_qs, u"Incomplete / stuck"_qs, u""_qs, u"toes"_qs},
                  {u"Vet visit"_qs, u"2026-09-04"_qs, u"Check-up"_qs, u"Clinic"_qs, u"Weigh weekly"_qs},
                  {u"Vet visit"_qs, u"2026-09-04"_qs, u"Check-up"_qs, u"Clinic, Dr. Vet"_qs,
                   u"Healthy | Follow-up: Weigh weekly"_qs},
                  {medicationRow, u"2026-09-01"_qs, u"Med A"_qs, u"Line one\nline two"_qs,
                   u"Dr. Who; until 2026-09-10"_qs},
                  {medicationRow, u""_qs, u"Med A"_qs, u"Line one\nline two"_qs, u"until 2026-09-10"_qs},
              }));
    EXPECT_TRUE(document.endsWith(u"\r\n"));
    EXPECT_FALSE(document.startsWith(QChar(0xFEFF)));
}

TEST_F(CSV, OfTheSampleFerretHasFiveFieldsEverywhere) {
    SampleData::add(made.store);
    const QList<Pet> pets = made.store.pets();
    const auto pepper = std::ranges::find(pets, u"Pepper (sample)"_qs, &Pet::name);
    const QList<QStringList> rows = OMCSV::parse(OMCSV::petRecords(*pepper, made.store));
    EXPECT_EQ(rows.size(), 1 + 1 + 6 + 1 + 1);
    for (const QStringList& row : rows)
        EXPECT_EQ(row.size(), 5);
}

} // namespace
} // namespace ormiva
