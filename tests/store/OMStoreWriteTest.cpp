#include "FixedCalendar.h"
#include "MadeStore.h"

namespace ormiva {
namespace {

using testing::errorOf;
using testing::FixedCalendar;
using testing::MadeStore;
using testing::utc;

constexpr OMDay today{2026, 3, 7};

class WritingToAStore : public ::testing::Test {
protected:
    WritingToAStore() {
        QObject::connect(&m_made.store, &OMStore::revisionChanged, &m_made.store, [this] { ++m_told; });
    }
    OMStore& store() { return m_made.store; }
    WeightEntry weight(double grams = 421) const {
        WeightEntry entry;
        entry.petID = m_pet.id;
        entry.grams = grams;
        return entry;
    }
    /// One row of every kind for `pet`.
    void addOneOfEach(const Pet& pet) {
        WeightEntry weight;
        weight.grams = 1;
        FeedingEntry feeding;
        feeding.food = u"hay"_qs;
        ShedEntry shed;
        VetVisit visit;
        visit.reason = u"limping"_qs;
        Medication medicine;
        medicine.name = u"Drops"_qs;
        Reminder reminder;
        weight.petID = feeding.petID = shed.petID = visit.petID = medicine.petID = pet.id;
        reminder.petID = pet.id;
        store().save(weight);
        store().save(feeding);
        store().save(shed);
        store().save(visit);
        store().save(medicine);
        store().save(reminder);
        store().setChecked(pet.id, today, u"Fresh water"_qs, true);
    }

    FixedCalendar m_calendar{utc(2026, 3, 7)};
    MadeStore m_made;
    Pet m_pet = m_made.addPet();
    int m_told = 0;
};

/// The revision before anything but the pet was written.
constexpr int start = 1;

TEST_F(WritingToAStore, GivesANewRecordItsId) {
    WeightEntry first = weight();
    WeightEntry second = weight();
    store().save(first);
    store().save(second);
    EXPECT_EQ(first.id, 1);
    EXPECT_EQ(second.id, 2);
    EXPECT_EQ(store().weights(m_pet.id), QList<WeightEntry>({first, second}));
}

TEST_F(WritingToAStore, TellsEachChangeOnce) {
    EXPECT_EQ(store().revision(), start);
    WeightEntry entry = weight();
    store().save(entry);
    EXPECT_EQ(store().revision(), start + 1);
    store().save(entry);
    EXPECT_EQ(store().revision(), start + 2);
    store().remove<WeightEntry>(entry.id);
    EXPECT_EQ(store().revision(), start + 3);
    store().changed();
    EXPECT_EQ(store().revision(), start + 4);
    EXPECT_EQ(m_told, 4);
}

TEST_F(WritingToAStore, ChangesTheRowOfAnOldRecordAndNoOther) {
    WeightEntry first = weight(1);
    WeightEntry second = weight(2);
    store().save(first);
    store().save(second);
    second.grams = 3;
    second.note = u"after the meal"_qs;
    store().save(second);
    EXPECT_EQ(store().weights(m_pet.id), QList<WeightEntry>({first, second}));
}

TEST_F(WritingToAStore, FailsForARecordThatIsGone) {
    WeightEntry kept = weight(1);
    store().save(kept);
    const int revision = store().revision();
    for (const qint64 id : {qint64(99), qint64(-1)}) {
        WeightEntry gone = weight(2);
        gone.id = id;
        EXPECT_EQ(errorOf([&] { store().save(gone); }), OMError::notFound());
        EXPECT_EQ(gone.id, id);
    }
    EXPECT_EQ(store().weights(m_pet.id), QList<WeightEntry>({kept}));
    EXPECT_EQ(store().revision(), revision);
}

TEST_F(WritingToAStore, ValidatesBeforeItLooksForTheRecord) {
    WeightEntry entry = weight(0);
    entry.id = 99;
    EXPECT_EQ(errorOf([&] { store().save(entry); }),
              OMError::invalid(u"Please enter a weight greater than zero."_qs));
}

TEST_F(WritingToAStore, WritesNothingOfAnInvalidRecord) {
    WeightEntry entry = weight(-1);
    EXPECT_EQ(errorOf([&] { store().save(entry); }),
              OMError::invalid(u"Please enter a weight greater than zero."_qs));
    EXPECT_EQ(entry.id, 0);
    EXPECT_EQ(store().weights(m_pet.id), QList<WeightEntry>());
    EXPECT_EQ(store().revision(), start);
    EXPECT_EQ(m_told, 0);
}

TEST_F(WritingToAStore, DeletesARowAndTellsEvenWhenItIsGone) {
    WeightEntry first = weight(1);
    WeightEntry second = weight(2);
    store().save(first);
    store().save(second);
    store().remove<WeightEntry>(first.id);
    EXPECT_EQ(store().weights(m_pet.id), QList<WeightEntry>({second}));
    const int revision = store().revision();
    store().remove<WeightEntry>(first.id);
    store().remove<ShedEntry>(12345);
    EXPECT_EQ(store().weights(m_pet.id), QList<WeightEntry>({second}));
    EXPECT_EQ(store().revision(), revision + 2);
}

TEST_F(WritingToAStore, TakesEverythingOfAPetAwayWithIt) {
    const Pet other = m_made.addPet(u"Mo"_qs);
    addOneOfEach(m_pet);
    addOneOfEach(other);
    Reminder forNoPet;
    store().save(forNoPet);
    store().remove<Pet>(m_pet.id);
    const QMap<QString, qint64> left = {{u"pet"_qs, 1},      {u"weight"_qs, 1},    {u"feeding"_qs, 1},
                                        {u"shed"_qs, 1},     {u"vet_visit"_qs, 1}, {u"medication"_qs, 1},
                                        {u"reminder"_qs, 2}, {u"checklist"_qs, 1}};
    EXPECT_EQ(store().counts(), left);
    store().remove<Pet>(other.id);
    const QMap<QString, qint64> last = {{u"pet"_qs, 0},      {u"weight"_qs, 0},    {u"feeding"_qs, 0},
                                        {u"shed"_qs, 0},     {u"vet_visit"_qs, 0}, {u"medication"_qs, 0},
                                        {u"reminder"_qs, 1}, {u"checklist"_qs, 0}};
    EXPECT_EQ(store().counts(), last);
    EXPECT_EQ(store().reminders(), QList<Reminder>({forNoPet}));
}

TEST_F(WritingToAStore, MarksAReminderDoneWithItsOtherFields) {
    Reminder reminder;
    reminder.everyDays = 7;
    store().save(reminder);
    const int revision = store().revision();
    Reminder edited = reminder;
    edited.title = u"Weekly"_qs;
    store().markDone(edited, {2026, 3, 6});
    EXPECT_EQ(edited.lastDone, std::nullopt);
    edited.lastDone = OMDay{2026, 3, 6};
    EXPECT_EQ(store().reminders(), QList<Reminder>({edited}));
    EXPECT_EQ(store().revision(), revision + 1);
}

TEST_F(WritingToAStore, CannotMarkADeletedReminderDone) {
    Reminder reminder;
    store().save(reminder);
    store().remove<Reminder>(reminder.id);
    const int revision = store().revision();
    EXPECT_EQ(errorOf([&] { store().markDone(reminder, today); }), OMError::notFound());
    EXPECT_EQ(store().revision(), revision);
}

TEST_F(WritingToAStore, TicksAndUnticksAnItem) {
    const QString item = u"Fresh water, it's daily"_qs;
    store().setChecked(m_pet.id, today, item, true);
    store().setChecked(m_pet.id, today, item, true);
    EXPECT_EQ(store().counts().value(u"checklist"_qs), 1);
    EXPECT_EQ(store().checked(m_pet.id, today), QSet<QString>({item}));
    EXPECT_EQ(store().revision(), start + 2);
    store().setChecked(m_pet.id, today, item, false);
    store().setChecked(m_pet.id, today, item, false);
    EXPECT_EQ(store().checked(m_pet.id, today), QSet<QString>());
    EXPECT_EQ(store().revision(), start + 4);
}

TEST_F(WritingToAStore, KeepsTheTicksOfEachPetAndDayApart) {
    const Pet other = m_made.addPet(u"Mo"_qs);
    store().setChecked(m_pet.id, today, u"a"_qs, true);
    store().setChecked(m_pet.id, today, u"b"_qs, true);
    store().setChecked(m_pet.id, {2026, 3, 6}, u"c"_qs, true);
    store().setChecked(other.id, today, u"d"_qs, true);
    EXPECT_EQ(store().checked(m_pet.id, today), QSet<QString>({u"a"_qs, u"b"_qs}));
    EXPECT_EQ(store().checked(m_pet.id, {2026, 3, 6}), QSet<QString>({u"c"_qs}));
    EXPECT_EQ(store().checked(m_pet.id, {2026, 3, 8}), QSet<QString>());
    EXPECT_EQ(store().checked(other.id, today), QSet<QString>({u"d"_qs}));
}

TEST_F(WritingToAStore, CannotTickForAPetThatIsGone) {
    EXPECT_EQ(errorOf([&] { store().setChecked(99, today, u"a"_qs, true); }),
              OMError::database(u"FOREIGN KEY constraint failed"_qs));
    EXPECT_EQ(store().revision(), start);
}

TEST_F(WritingToAStore, KeepsRowsWithoutAPetOut) {
    EXPECT_EQ(errorOf([&] {
                  store().db().exec(u"INSERT INTO weight (pet_id, day, grams) VALUES (99, 'x', 1)"_qs);
              }),
              OMError::database(u"FOREIGN KEY constraint failed"_qs));
}

TEST_F(WritingToAStore, ReportsAWriteThatTheDatabaseRefuses) {
    Reminder reminder;
    store().save(reminder);
    WeightEntry old = weight(1);
    store().save(old);
    store().setChecked(m_pet.id, today, u"a"_qs, true);
    for (const char* action : {"INSERT", "UPDATE", "DELETE"})
        for (const char* table : {"weight", "reminder", "checklist"})
            store().db().exec(
                u"CREATE TRIGGER t_%1_%2 BEFORE %1 ON %2 BEGIN SELECT RAISE(ABORT, 'out of paper'); END"_qs
                    .arg(QString::fromLatin1(action), QString::fromLatin1(table)));
    const QString digest = store().digest();
    const int revision = store().revision();
    const int told = m_told;
    const OMError refused = OMError::database(u"out of paper"_qs);

    WeightEntry added = weight(2);
    EXPECT_EQ(errorOf([&] { store().save(added); }), refused);
    EXPECT_EQ(added.id, 0);
    WeightEntry edited = old;
    edited.grams = 5;
    EXPECT_EQ(errorOf([&] { store().save(edited); }), refused);
    EXPECT_EQ(errorOf([&] { store().remove<WeightEntry>(old.id); }), refused);
    EXPECT_EQ(errorOf([&] { store().markDone(reminder, today); }), refused);
    EXPECT_EQ(errorOf([&] { store().setChecked(m_pet.id, today, u"b"_qs, true); }), refused);
    EXPECT_EQ(errorOf([&] { store().setChecked(m_pet.id, today, u"a"_qs, false); }), refused);

    EXPECT_EQ(store().digest(), digest);
    EXPECT_EQ(store().revision(), revision);
    EXPECT_EQ(m_told, told);
}

TEST_F(WritingToAStore, ReportsThatTheDatabaseCannotBeWritten) {
    WeightEntry old = weight(1);
    store().save(old);
    store().db().exec(u"PRAGMA query_only = ON"_qs);
    const int revision = store().revision();
    const OMError refused = OMError::database(u"attempt to write a readonly database"_qs);
    WeightEntry added = weight(2);
    EXPECT_EQ(errorOf([&] { store().save(added); }), refused);
    EXPECT_EQ(errorOf([&] { store().save(old); }), refused);
    EXPECT_EQ(errorOf([&] { store().remove<Pet>(m_pet.id); }), refused);
    EXPECT_EQ(errorOf([&] { store().setChecked(m_pet.id, today, u"a"_qs, true); }), refused);
    EXPECT_EQ(store().weights(m_pet.id), QList<WeightEntry>({old}));
    EXPECT_EQ(store().revision(), revision);
}

TEST_F(WritingToAStore, IsSeenByAnotherConnectionAtOnce) {
    WeightEntry entry = weight();
    store().save(entry);
    SQLiteDB other(m_made.path(), true);
    EXPECT_EQ(other.scalarInt(u"SELECT count(*) FROM weight"_qs), 1);
}

} // namespace
} // namespace ormiva
