#include "VetRecords.h"

#include "FixedCalendar.h"
#include "MadeStore.h"

namespace ormiva {
namespace {

using testing::FixedCalendar;
using testing::MadeStore;
using testing::refusal;
using testing::rowOf;
using testing::utc;

const QString noPet = QStringLiteral("Please choose a pet.");

class VetRecord : public ::testing::Test {
protected:
    VetVisit visit() const {
        VetVisit visit;
        visit.petID = m_pet.id;
        return visit;
    }
    Medication medicine() const {
        Medication medicine;
        medicine.petID = m_pet.id;
        medicine.name = u"Eye drops"_qs;
        return medicine;
    }

    FixedCalendar m_calendar{utc(2026, 3, 7)};
    MadeStore m_made;
    Pet m_pet = m_made.addPet();
};

using VetVisitRecord = VetRecord;
using MedicationRecord = VetRecord;

TEST_F(VetVisitRecord, HasItsTableAndColumns) {
    EXPECT_EQ(VetVisit::table(), u"vet_visit"_qs);
    EXPECT_EQ(VetVisit::columns(), QStringList({u"pet_id"_qs, u"day"_qs, u"clinic"_qs, u"vet"_qs,
                                                u"reason"_qs, u"findings"_qs, u"follow_up"_qs}));
}

TEST_F(VetVisitRecord, BeginsBlankToday) {
    const VetVisit visit;
    EXPECT_EQ(visit.id, 0);
    EXPECT_EQ(visit.petID, 0);
    EXPECT_EQ(visit.day, (OMDay{2026, 3, 7}));
    for (const QString& text : {visit.clinic, visit.vet, visit.reason, visit.findings, visit.followUp})
        EXPECT_EQ(text, QString());
}

TEST_F(VetVisitRecord, IsWrittenAndReadBack) {
    VetVisit record = visit();
    record.day = {2026, 1, 31};
    record.clinic = u"Zoo & Exotics"_qs;
    record.vet = u"Dr O'Hara"_qs;
    record.reason = u" limping "_qs;
    record.findings = u"a sprain"_qs;
    record.followUp = u"in 2 weeks"_qs;
    record = m_made.saved(record);
    EXPECT_EQ(m_made.rows(u"vet_visit"_qs), QList<SQLRow>({rowOf({{u"id"_qs, record.id},
                                                                  {u"pet_id"_qs, m_pet.id},
                                                                  {u"day"_qs, u"2026-01-31"_qs},
                                                                  {u"clinic"_qs, u"Zoo & Exotics"_qs},
                                                                  {u"vet"_qs, u"Dr O'Hara"_qs},
                                                                  {u"reason"_qs, u" limping "_qs},
                                                                  {u"findings"_qs, u"a sprain"_qs},
                                                                  {u"follow_up"_qs, u"in 2 weeks"_qs}})}));
    EXPECT_EQ(m_made.store.visits(m_pet.id), QList<VetVisit>({record}));
}

TEST_F(VetVisitRecord, NeedsAPetThenAReasonOrAClinic) {
    const QString neither = u"Please enter the clinic or the reason for the visit."_qs;
    VetVisit record;
    EXPECT_EQ(refusal(record, m_made.store), noPet);
    record = visit();
    record.vet = u"Dr Who"_qs;
    EXPECT_EQ(refusal(record, m_made.store), neither);
    record.clinic = u" \n"_qs;
    record.reason = u"\u00a0"_qs;
    EXPECT_EQ(refusal(record, m_made.store), neither);
    record.clinic = u"Zoo & Exotics"_qs;
    EXPECT_EQ(refusal(record, m_made.store), QString());
    record.clinic = QString();
    record.reason = u"limping"_qs;
    EXPECT_EQ(refusal(record, m_made.store), QString());
}

TEST_F(MedicationRecord, HasItsTableAndColumnsWithoutADose) {
    EXPECT_EQ(Medication::table(), u"medication"_qs);
    EXPECT_EQ(Medication::columns(),
              QStringList({u"pet_id"_qs, u"name"_qs, u"instructions"_qs, u"prescribed_by"_qs, u"start"_qs,
                           u"end_day"_qs, u"notes"_qs}));
}

TEST_F(MedicationRecord, BeginsBlankStartingToday) {
    const Medication medicine;
    EXPECT_EQ(medicine.id, 0);
    EXPECT_EQ(medicine.petID, 0);
    for (const QString& text : {medicine.name, medicine.instructions, medicine.prescribedBy, medicine.notes})
        EXPECT_EQ(text, QString());
    EXPECT_EQ(medicine.start, (OMDay{2026, 3, 7}));
    EXPECT_EQ(medicine.end, std::nullopt);
}

TEST_F(MedicationRecord, IsWrittenAndReadBack) {
    Medication record = medicine();
    record.instructions = u"As on the label. "_qs;
    record.prescribedBy = u"Dr O'Hara"_qs;
    record.end = OMDay{2026, 3, 21};
    record.notes = u"in the fridge"_qs;
    record = m_made.saved(record);
    Medication open = medicine();
    open.start = std::nullopt;
    open = m_made.saved(open);
    const SQLRow row = rowOf({{u"id"_qs, record.id},
                              {u"pet_id"_qs, m_pet.id},
                              {u"name"_qs, u"Eye drops"_qs},
                              {u"instructions"_qs, u"As on the label. "_qs},
                              {u"prescribed_by"_qs, u"Dr O'Hara"_qs},
                              {u"start"_qs, u"2026-03-07"_qs},
                              {u"end_day"_qs, u"2026-03-21"_qs},
                              {u"notes"_qs, u"in the fridge"_qs}});
    const SQLRow openRow = rowOf({{u"id"_qs, open.id},
                                  {u"pet_id"_qs, m_pet.id},
                                  {u"name"_qs, u"Eye drops"_qs},
                                  {u"instructions"_qs, u""_qs},
                                  {u"prescribed_by"_qs, u""_qs},
                                  {u"start"_qs, SQLNull()},
                                  {u"end_day"_qs, SQLNull()},
                                  {u"notes"_qs, u""_qs}});
    EXPECT_EQ(m_made.rows(u"medication"_qs), QList<SQLRow>({row, openRow}));
    EXPECT_EQ(m_made.store.medications(m_pet.id), QList<Medication>({record, open}));
}

TEST_F(MedicationRecord, NeedsAPetThenANameThenDaysInOrder) {
    Medication record;
    record.start = OMDay{2026, 3, 7};
    record.end = OMDay{2026, 3, 6};
    EXPECT_EQ(refusal(record, m_made.store), noPet);
    record.petID = m_pet.id;
    EXPECT_EQ(refusal(record, m_made.store),
              u"Please enter the medicine's name as it appears on the label."_qs);
    record.name = u" \u00a0"_qs;
    EXPECT_EQ(refusal(record, m_made.store),
              u"Please enter the medicine's name as it appears on the label."_qs);
    record.name = u"Eye drops"_qs;
    EXPECT_EQ(refusal(record, m_made.store), u"The end date is before the start date."_qs);
    record.end = record.start;
    EXPECT_EQ(refusal(record, m_made.store), QString());
}

TEST_F(MedicationRecord, MayLackEitherDay) {
    Medication record = medicine();
    record.start = std::nullopt;
    record.end = OMDay{1999, 1, 1};
    EXPECT_EQ(refusal(record, m_made.store), QString());
    record.start = OMDay{2099, 1, 1};
    record.end = std::nullopt;
    EXPECT_EQ(refusal(record, m_made.store), QString());
}

TEST_F(MedicationRecord, IsCurrentUntilItsEnd) {
    Medication record = medicine();
    EXPECT_TRUE(record.isCurrent());
    record.end = OMDay{2026, 3, 7};
    EXPECT_TRUE(record.isCurrent());
    record.end = OMDay{2026, 3, 8};
    EXPECT_TRUE(record.isCurrent());
    record.end = OMDay{2026, 3, 6};
    EXPECT_FALSE(record.isCurrent());
    record.start = OMDay{2099, 1, 1};
    record.end = std::nullopt;
    EXPECT_TRUE(record.isCurrent());
}

TEST_F(MedicationRecord, OffersAbsentDaysToScreensAsNothing) {
    const Medication record = medicine();
    EXPECT_EQ(record.startForQml().value<OMDay>(), (OMDay{2026, 3, 7}));
    EXPECT_FALSE(record.endForQml().isValid());
}

} // namespace
} // namespace ormiva
