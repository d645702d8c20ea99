#include "Pet.h"

#include "FixedCalendar.h"
#include "MadeStore.h"

namespace ormiva {
namespace {

using testing::FixedCalendar;
using testing::MadeStore;
using testing::refusal;
using testing::rowOf;
using testing::utc;

class PetRecord : public ::testing::Test {
protected:
    static Pet valid() {
        Pet pet;
        pet.name = u"Gex"_qs;
        pet.speciesID = u"leopard-gecko"_qs;
        return pet;
    }
    static Pet complete() {
        Pet pet = valid();
        pet.sex = u"female"_qs;
        pet.birthday = OMDay{2024, 2, 3};
        pet.acquired = OMDay{2024, 5, 6};
        pet.photo = QByteArray("\xff\xd8\0x", 4);
        pet.markings = u" spots "_qs;
        pet.enclosure = u"60 × 45 cm"_qs;
        pet.notes = u"shy\n"_qs;
        return pet;
    }

    FixedCalendar m_calendar{utc(2026, 3, 7)};
    MadeStore m_made;
};

TEST_F(PetRecord, HasItsTableAndColumns) {
    EXPECT_EQ(Pet::table(), u"pet"_qs);
    EXPECT_EQ(Pet::columns(),
              QStringList({u"name"_qs, u"species_id"_qs, u"sex"_qs, u"birthday"_qs, u"acquired"_qs,
                           u"photo"_qs, u"markings"_qs, u"enclosure"_qs, u"notes"_qs}));
}

TEST_F(PetRecord, BeginsBlank) {
    const Pet pet;
    EXPECT_EQ(pet.id, 0);
    for (const QString& text : {pet.name, pet.speciesID, pet.sex, pet.markings, pet.enclosure, pet.notes})
        EXPECT_EQ(text, QString());
    EXPECT_EQ(pet.birthday, std::nullopt);
    EXPECT_EQ(pet.acquired, std::nullopt);
    EXPECT_EQ(pet.photo, std::nullopt);
}

TEST_F(PetRecord, IsWrittenColumnByColumn) {
    const Pet pet = m_made.saved(complete());
    EXPECT_EQ(m_made.rows(u"pet"_qs), QList<SQLRow>({rowOf({{u"id"_qs, pet.id},
                                                            {u"name"_qs, u"Gex"_qs},
                                                            {u"species_id"_qs, u"leopard-gecko"_qs},
                                                            {u"sex"_qs, u"female"_qs},
                                                            {u"birthday"_qs, u"2024-02-03"_qs},
                                                            {u"acquired"_qs, u"2024-05-06"_qs},
                                                            {u"photo"_qs, QByteArray("\xff\xd8\0x", 4)},
                                                            {u"markings"_qs, u" spots "_qs},
                                                            {u"enclosure"_qs, u"60 × 45 cm"_qs},
                                                            {u"notes"_qs, u"shy\n"_qs}})}));
}

TEST_F(PetRecord, IsWrittenWithNullsForWhatIsAbsent) {
    const Pet pet = m_made.saved(valid());
    EXPECT_EQ(m_made.rows(u"pet"_qs), QList<SQLRow>({rowOf({{u"id"_qs, pet.id},
                                                            {u"name"_qs, u"Gex"_qs},
                                                            {u"species_id"_qs, u"leopard-gecko"_qs},
                                                            {u"sex"_qs, u""_qs},
                                                            {u"birthday"_qs, SQLNull()},
                                                            {u"acquired"_qs, SQLNull()},
                                                            {u"photo"_qs, SQLNull()},
                                                            {u"markings"_qs, u""_qs},
                                                            {u"enclosure"_qs, u""_qs},
                                                            {u"notes"_qs, u""_qs}})}));
}

TEST_F(PetRecord, ReadsBackAsItWasWritten) {
    const Pet full = m_made.saved(complete());
    Pet sparse = valid();
    sparse.photo = QByteArray("");
    sparse = m_made.saved(sparse);
    EXPECT_EQ(m_made.store.pet(full.id), full);
    EXPECT_EQ(m_made.store.pet(sparse.id), sparse);
}

TEST_F(PetRecord, IsStoredUnderItsTrimmedName) {
    Pet pet = valid();
    pet.name = u"\n \u00a0Mr  Gex\t\u00a0 "_qs;
    pet = m_made.saved(pet);
    const auto stored = m_made.store.pet(pet.id);
    ASSERT_TRUE(stored.has_value());
    EXPECT_EQ(stored->name, u"Mr  Gex"_qs);
}

TEST_F(PetRecord, IsValidWithANameAndASpecies) {
    EXPECT_EQ(refusal(valid(), m_made.store), QString());
    EXPECT_EQ(refusal(complete(), m_made.store), QString());
}

TEST_F(PetRecord, NeedsAName) {
    for (const QString& name : {u""_qs, u"  "_qs, u"\n\t"_qs, u"\u00a0"_qs}) {
        Pet pet = valid();
        pet.name = name;
        EXPECT_EQ(refusal(pet, m_made.store), u"Please give your pet a name."_qs);
    }
}

TEST_F(PetRecord, NeedsASpeciesOfTheLibrary) {
    for (const QString& id : {u""_qs, u"unicorn"_qs, u"Leopard-Gecko"_qs, u"leopard-gecko "_qs}) {
        Pet pet = valid();
        pet.speciesID = id;
        EXPECT_EQ(refusal(pet, m_made.store), u"Please choose a species."_qs) << id.toStdString();
    }
}

TEST_F(PetRecord, CannotBeBornInTheFuture) {
    Pet pet = valid();
    pet.birthday = OMDay{2026, 3, 7};
    EXPECT_EQ(refusal(pet, m_made.store), QString());
    pet.birthday = OMDay{2026, 3, 8};
    EXPECT_EQ(refusal(pet, m_made.store), u"The birthday can't be in the future."_qs);
}

TEST_F(PetRecord, CanBeAcquiredOnAnyDay) {
    Pet pet = valid();
    pet.birthday = OMDay{2026, 3, 7};
    for (const OMDay& day : {OMDay{2099, 1, 1}, OMDay{1999, 1, 1}, OMDay{2026, 2, 31}}) {
        pet.acquired = day;
        EXPECT_EQ(refusal(pet, m_made.store), QString());
    }
}

TEST_F(PetRecord, TellsTheFirstFailingCheckOnly) {
    Pet pet;
    pet.birthday = OMDay{2099, 1, 1};
    EXPECT_EQ(refusal(pet, m_made.store), u"Please give your pet a name."_qs);
    pet.name = u"Gex"_qs;
    EXPECT_EQ(refusal(pet, m_made.store), u"Please choose a species."_qs);
    pet.speciesID = u"rabbit"_qs;
    EXPECT_EQ(refusal(pet, m_made.store), u"The birthday can't be in the future."_qs);
}

TEST_F(PetRecord, FindsItsSpecies) {
    Pet pet = valid();
    ASSERT_TRUE(pet.species().has_value());
    EXPECT_EQ(pet.species()->name, u"Leopard Gecko"_qs);
    pet.speciesID = u"unicorn"_qs;
    EXPECT_FALSE(pet.species().has_value());
}

TEST_F(PetRecord, IsEqualFieldByField) {
    const Pet pet = complete();
    EXPECT_EQ(pet, complete());
    QList<Pet> others(10, pet);
    others[0].id = 1;
    others[1].name = u"x"_qs;
    others[2].speciesID = u"x"_qs;
    others[3].sex = u"x"_qs;
    others[4].birthday = std::nullopt;
    others[5].acquired = std::nullopt;
    others[6].photo = std::nullopt;
    others[7].markings = u"x"_qs;
    others[8].enclosure = u"x"_qs;
    others[9].notes = u"x"_qs;
    for (const Pet& other : others)
        EXPECT_FALSE(other == pet);
}

TEST_F(PetRecord, OffersAbsentDaysToScreensAsNothing) {
    EXPECT_FALSE(valid().birthdayForQml().isValid());
    EXPECT_EQ(complete().birthdayForQml().value<OMDay>(), (OMDay{2024, 2, 3}));
    EXPECT_EQ(complete().acquiredForQml().value<OMDay>(), (OMDay{2024, 5, 6}));
}

QString age(const OMDay& birthday, Instant now) {
    const FixedCalendar calendar(now);
    Pet pet;
    pet.birthday = birthday;
    return pet.ageText();
}

TEST(PetAge, IsEmptyWithoutABirthday) {
    EXPECT_EQ(Pet().ageText(), QString());
}

TEST(PetAge, IsToldInYearsAndMonths) {
    const QList<std::pair<OMDay, QString>> expected = {
        {{2026, 3, 7}, u"under 1 month"_qs}, {{2026, 2, 8}, u"under 1 month"_qs},
        {{2026, 2, 7}, u"1 month"_qs},       {{2026, 1, 7}, u"2 months"_qs},
        {{2025, 3, 8}, u"11 months"_qs},     {{2025, 3, 7}, u"1 yr"_qs},
        {{2025, 2, 8}, u"1 yr"_qs},          {{2025, 2, 7}, u"1 yr 1 mo"_qs},
        {{2023, 1, 7}, u"3 yr 2 mo"_qs},     {{2006, 3, 7}, u"20 yr"_qs},
        {{2005, 4, 7}, u"20 yr 11 mo"_qs},
    };
    for (const auto& [birthday, text] : expected)
        EXPECT_EQ(age(birthday, utc(2026, 3, 7, 18)), text) << birthday.iso().toStdString();
}

TEST(PetAge, GrowsAtNoonOfTheDay) {
    EXPECT_EQ(age({2025, 3, 7}, utc(2026, 3, 7, 11, 59)), u"11 months"_qs);
    EXPECT_EQ(age({2025, 3, 7}, utc(2026, 3, 7, 12)), u"1 yr"_qs);
}

TEST(PetAge, IsUnderAMonthForABirthdayInTheFuture) {
    for (const OMDay& birthday :
         {OMDay{2026, 3, 8}, OMDay{2026, 12, 1}, OMDay{2031, 1, 1}, OMDay{999999999, 1, 1}})
        EXPECT_EQ(age(birthday, utc(2026, 3, 7)), u"under 1 month"_qs) << birthday.iso().toStdString();
}

TEST(PetAge, CountsFromTheLastDaysOfAMonth) {
    EXPECT_EQ(age({2026, 1, 31}, utc(2026, 2, 27, 18)), u"under 1 month"_qs);
    EXPECT_EQ(age({2026, 1, 31}, utc(2026, 2, 28, 18)), u"1 month"_qs);
    EXPECT_EQ(age({2026, 1, 30}, utc(2026, 2, 28, 18)), u"1 month"_qs);
    EXPECT_EQ(age({2026, 1, 29}, utc(2026, 2, 28, 18)), u"1 month"_qs);
    EXPECT_EQ(age({2026, 1, 31}, utc(2026, 3, 30, 18)), u"1 month"_qs);
    EXPECT_EQ(age({2026, 1, 31}, utc(2026, 3, 31, 18)), u"2 months"_qs);
    EXPECT_EQ(age({2024, 2, 29}, utc(2025, 2, 28, 18)), u"1 yr"_qs);
    EXPECT_EQ(age({2024, 2, 29}, utc(2028, 2, 29, 18)), u"4 yr"_qs);
}

TEST(PetAge, OfADamagedBirthdayIsStillToldInYears) {
    EXPECT_EQ(age({-999999999, 1, 1}, utc(2026, 1, 1, 18)), u"2002026 yr"_qs);
    EXPECT_EQ(age({2026, 1, 31}, utc(2026, 1, 31, 12)), u"under 1 month"_qs);
}

} // namespace
} // namespace ormiva
