#include "FixedCalendar.h"
#include "MadeStore.h"

namespace ormiva {
namespace {

using testing::FixedCalendar;
using testing::MadeStore;
using testing::utc;

constexpr OMDay today{2026, 3, 7};
constexpr OMDay yesterday{2026, 3, 6};
constexpr OMDay tomorrow{2026, 3, 8};

class ListsOfAStore : public ::testing::Test {
protected:
    OMStore& store() { return m_made.store; }
    template <OMRecord T>
    T add(T record, const OMDay& day, qint64 petID = 0) {
        record.day = day;
        record.petID = petID != 0 ? petID : m_pet.id;
        return m_made.saved(record);
    }

    FixedCalendar m_calendar{utc(2026, 3, 7)};
    MadeStore m_made;
    Pet m_pet = m_made.addPet(u"gamma"_qs);
    Pet m_other = m_made.addPet(u"alpha"_qs);
};

TEST_F(ListsOfAStore, HavePetsByNameWithoutRegardToCase) {
    const Pet beta = m_made.addPet(u"Beta"_qs);
    EXPECT_EQ(store().pets(), QList<Pet>({m_other, beta, m_pet}));
}

TEST_F(ListsOfAStore, FindAPetByItsId) {
    EXPECT_EQ(store().pet(m_other.id), m_other);
    EXPECT_EQ(store().pet(99), std::nullopt);
    EXPECT_EQ(store().pet(0), std::nullopt);
}

TEST_F(ListsOfAStore, HaveWeightsOldestFirst) {
    WeightEntry weight;
    weight.grams = 421;
    const auto second = add(weight, today);
    const auto third = add(weight, today);
    const auto last = add(weight, {2026, 10, 1});
    const auto first = add(weight, yesterday);
    add(weight, yesterday, m_other.id);
    EXPECT_EQ(store().weights(m_pet.id), QList<WeightEntry>({first, second, third, last}));
}

TEST_F(ListsOfAStore, HaveFeedingsNewestFirst) {
    FeedingEntry feeding;
    feeding.food = u"hay"_qs;
    const auto earlier = add(feeding, today);
    const auto later = add(feeding, today);
    const auto newest = add(feeding, tomorrow);
    const auto oldest = add(feeding, yesterday);
    add(feeding, tomorrow, m_other.id);
    EXPECT_EQ(store().feedings(m_pet.id), QList<FeedingEntry>({newest, later, earlier, oldest}));
}

TEST_F(ListsOfAStore, HaveShedsNewestFirst) {
    const auto earlier = add(ShedEntry(), today);
    const auto later = add(ShedEntry(), today);
    const auto newest = add(ShedEntry(), tomorrow);
    const auto oldest = add(ShedEntry(), yesterday);
    add(ShedEntry(), tomorrow, m_other.id);
    EXPECT_EQ(store().sheds(m_pet.id), QList<ShedEntry>({newest, later, earlier, oldest}));
}

TEST_F(ListsOfAStore, HaveVisitsNewestFirst) {
    VetVisit visit;
    visit.reason = u"limping"_qs;
    const auto earlier = add(visit, today);
    const auto later = add(visit, today);
    const auto newest = add(visit, tomorrow);
    const auto oldest = add(visit, yesterday);
    add(visit, tomorrow, m_other.id);
    EXPECT_EQ(store().visits(m_pet.id), QList<VetVisit>({newest, later, earlier, oldest}));
}

TEST_F(ListsOfAStore, HaveMedicinesByTheirStartNewestFirst) {
    const auto add = [&](std::optional<OMDay> day, qint64 petID) {
        Medication medicine;
        medicine.petID = petID;
        medicine.name = u"Drops"_qs;
        medicine.start = day;
        return m_made.saved(medicine);
    };
    const auto undated = add(std::nullopt, m_pet.id);
    const auto earlier = add(today, m_pet.id);
    const auto later = add(today, m_pet.id);
    const auto newest = add(tomorrow, m_pet.id);
    const auto oldest = add(yesterday, m_pet.id);
    add(tomorrow, m_other.id);
    EXPECT_EQ(store().medications(m_pet.id), QList<Medication>({newest, later, earlier, oldest, undated}));
}

TEST_F(ListsOfAStore, HaveRemindersInTheOrderInWhichTheyWereMade) {
    const auto add = [&](std::optional<qint64> petID, const OMDay& start) {
        Reminder reminder;
        reminder.petID = petID;
        reminder.start = start;
        return m_made.saved(reminder);
    };
    const auto first = add(m_pet.id, tomorrow);
    const auto second = add(std::nullopt, today);
    const auto third = add(m_other.id, yesterday);
    const auto fourth = add(m_pet.id, yesterday);
    EXPECT_EQ(store().reminders(), QList<Reminder>({first, second, third, fourth}));
    EXPECT_EQ(store().reminders(m_pet.id), QList<Reminder>({first, fourth}));
    EXPECT_EQ(store().reminders(m_other.id), QList<Reminder>({third}));
}

TEST_F(ListsOfAStore, AreEmptyForAPetThatIsNotThere) {
    EXPECT_EQ(store().weights(99), QList<WeightEntry>());
    EXPECT_EQ(store().feedings(99), QList<FeedingEntry>());
    EXPECT_EQ(store().sheds(99), QList<ShedEntry>());
    EXPECT_EQ(store().visits(99), QList<VetVisit>());
    EXPECT_EQ(store().medications(99), QList<Medication>());
    EXPECT_EQ(store().reminders(99), QList<Reminder>());
    EXPECT_EQ(store().checked(99, today), QSet<QString>());
}

TEST_F(ListsOfAStore, AreMadeWithAConditionAndAnOrder) {
    EXPECT_EQ(store().all<Pet>(), QList<Pet>({m_pet, m_other}));
    EXPECT_EQ(store().all<Pet>({}, {}, u"name"_qs), QList<Pet>({m_other, m_pet}));
    EXPECT_EQ(store().all<Pet>(u"name = ?"_qs, {u"alpha"_qs}), QList<Pet>({m_other}));
}

TEST_F(ListsOfAStore, AreEmptyWhenTheyCannotBeRead) {
    store().setChecked(m_pet.id, today, u"a"_qs, true);
    EXPECT_EQ(store().all<Pet>(u"no such condition ("_qs), QList<Pet>());
    store().db().close();
    EXPECT_EQ(store().pets(), QList<Pet>());
    EXPECT_EQ(store().pet(m_pet.id), std::nullopt);
    EXPECT_EQ(store().weights(m_pet.id), QList<WeightEntry>());
    EXPECT_EQ(store().feedings(m_pet.id), QList<FeedingEntry>());
    EXPECT_EQ(store().sheds(m_pet.id), QList<ShedEntry>());
    EXPECT_EQ(store().visits(m_pet.id), QList<VetVisit>());
    EXPECT_EQ(store().medications(m_pet.id), QList<Medication>());
    EXPECT_EQ(store().reminders(), QList<Reminder>());
    EXPECT_EQ(store().checked(m_pet.id, today), QSet<QString>());
}

TEST_F(ListsOfAStore, AreCountedTableByTable) {
    store().setChecked(m_pet.id, today, u"a"_qs, true);
    store().setChecked(m_pet.id, today, u"b"_qs, true);
    add(ShedEntry(), today);
    QMap<QString, qint64> expected = {{u"pet"_qs, 2},      {u"weight"_qs, 0},    {u"feeding"_qs, 0},
                                      {u"shed"_qs, 1},     {u"vet_visit"_qs, 0}, {u"medication"_qs, 0},
                                      {u"reminder"_qs, 0}, {u"checklist"_qs, 2}};
    EXPECT_EQ(store().counts(), expected);
    store().db().exec(u"DROP TABLE checklist"_qs);
    expected[u"checklist"_qs] = 0;
    EXPECT_EQ(store().counts(), expected);
}

} // namespace
} // namespace ormiva
