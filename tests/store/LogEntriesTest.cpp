#include "LogEntries.h"

#include "FixedCalendar.h"
#include "MadeStore.h"

#include <cmath>
#include <limits>

namespace ormiva {
namespace {

using testing::FixedCalendar;
using testing::MadeStore;
using testing::refusal;
using testing::rowOf;
using testing::utc;

const QString noPet = QStringLiteral("Please choose a pet.");

class LogEntry : public ::testing::Test {
protected:
    template <OMRecord T>
    T entry() const {
        T record;
        record.petID = m_pet.id;
        return record;
    }

    FixedCalendar m_calendar{utc(2026, 3, 7)};
    MadeStore m_made;
    Pet m_pet = m_made.addPet();
};

using WeightRecord = LogEntry;
using FeedingRecord = LogEntry;
using ShedRecord = LogEntry;

TEST_F(LogEntry, HasItsTableAndColumns) {
    EXPECT_EQ(WeightEntry::table(), u"weight"_qs);
    EXPECT_EQ(WeightEntry::columns(), QStringList({u"pet_id"_qs, u"day"_qs, u"grams"_qs, u"note"_qs}));
    EXPECT_EQ(FeedingEntry::table(), u"feeding"_qs);
    EXPECT_EQ(FeedingEntry::columns(),
              QStringList({u"pet_id"_qs, u"day"_qs, u"food"_qs, u"amount"_qs, u"ate"_qs, u"note"_qs}));
    EXPECT_EQ(ShedEntry::table(), u"shed"_qs);
    EXPECT_EQ(ShedEntry::columns(), QStringList({u"pet_id"_qs, u"day"_qs, u"complete"_qs, u"note"_qs}));
}

TEST_F(WeightRecord, BeginsBlankToday) {
    const WeightEntry weight;
    EXPECT_EQ(weight.id, 0);
    EXPECT_EQ(weight.petID, 0);
    EXPECT_EQ(weight.day, (OMDay{2026, 3, 7}));
    EXPECT_EQ(weight.grams, 0);
    EXPECT_EQ(weight.note, QString());
}

TEST_F(WeightRecord, IsWrittenAndReadBack) {
    auto weight = entry<WeightEntry>();
    weight.day = {2026, 3, 5};
    weight.grams = 421.5;
    weight.note = u" after breakfast "_qs;
    weight = m_made.saved(weight);
    EXPECT_EQ(m_made.rows(u"weight"_qs), QList<SQLRow>({rowOf({{u"id"_qs, weight.id},
                                                               {u"pet_id"_qs, m_pet.id},
                                                               {u"day"_qs, u"2026-03-05"_qs},
                                                               {u"grams"_qs, 421.5},
                                                               {u"note"_qs, u" after breakfast "_qs}})}));
    EXPECT_EQ(m_made.store.weights(m_pet.id), QList<WeightEntry>({weight}));
}

TEST_F(WeightRecord, NeedsAPetBeforeAWeight) {
    WeightEntry weight;
    EXPECT_EQ(refusal(weight, m_made.store), noPet);
    weight.petID = m_pet.id + 1;
    EXPECT_EQ(refusal(weight, m_made.store), noPet);
    weight.petID = m_pet.id;
    EXPECT_EQ(refusal(weight, m_made.store), u"Please enter a weight greater than zero."_qs);
}

TEST_F(WeightRecord, TakesWeightsAboveZeroAndBelowHalfATon) {
    auto weight = entry<WeightEntry>();
    for (const double grams : {5e-324, 0.1, 421.0, 499'999.9}) {
        weight.grams = grams;
        EXPECT_EQ(refusal(weight, m_made.store), QString()) << grams;
    }
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double grams : {0.0, -0.0, -1.0, 500'000.0, 1e300, infinity, -infinity, std::nan("")}) {
        weight.grams = grams;
        EXPECT_EQ(refusal(weight, m_made.store), u"Please enter a weight greater than zero."_qs) << grams;
    }
}

TEST_F(WeightRecord, MayLieInTheFuture) {
    auto weight = entry<WeightEntry>();
    weight.grams = 1;
    weight.day = {2099, 1, 1};
    EXPECT_EQ(refusal(weight, m_made.store), QString());
}

TEST_F(FeedingRecord, BeginsBlankTodayAsEaten) {
    const FeedingEntry feeding;
    EXPECT_EQ(feeding.id, 0);
    EXPECT_EQ(feeding.petID, 0);
    EXPECT_EQ(feeding.day, (OMDay{2026, 3, 7}));
    EXPECT_EQ(feeding.food, QString());
    EXPECT_EQ(feeding.amount, QString());
    EXPECT_TRUE(feeding.ate);
    EXPECT_EQ(feeding.note, QString());
}

TEST_F(FeedingRecord, IsWrittenAndReadBack) {
    auto feeding = entry<FeedingEntry>();
    feeding.food = u" crickets "_qs;
    feeding.amount = u"5"_qs;
    feeding.note = u"dusted\n"_qs;
    feeding = m_made.saved(feeding);
    auto refused = feeding;
    refused.id = 0;
    refused.ate = false;
    refused = m_made.saved(refused);
    const auto row = [&](qint64 id, qint64 ate) {
        return rowOf({{u"id"_qs, id},
                      {u"pet_id"_qs, m_pet.id},
                      {u"day"_qs, u"2026-03-07"_qs},
                      {u"food"_qs, u" crickets "_qs},
                      {u"amount"_qs, u"5"_qs},
                      {u"ate"_qs, ate},
                      {u"note"_qs, u"dusted\n"_qs}});
    };
    EXPECT_EQ(m_made.rows(u"feeding"_qs), QList<SQLRow>({row(feeding.id, 1), row(refused.id, 0)}));
    EXPECT_EQ(m_made.store.feedings(m_pet.id), QList<FeedingEntry>({refused, feeding}));
}

TEST_F(FeedingRecord, NeedsAPetThenFood) {
    FeedingEntry feeding;
    EXPECT_EQ(refusal(feeding, m_made.store), noPet);
    feeding.petID = m_pet.id;
    EXPECT_EQ(refusal(feeding, m_made.store), u"Please say what was offered."_qs);
    feeding.food = u" \u00a0\n"_qs;
    EXPECT_EQ(refusal(feeding, m_made.store), u"Please say what was offered."_qs);
    feeding.food = u"hay"_qs;
    EXPECT_EQ(refusal(feeding, m_made.store), QString());
}

TEST_F(ShedRecord, BeginsBlankTodayAsComplete) {
    const ShedEntry shed;
    EXPECT_EQ(shed.id, 0);
    EXPECT_EQ(shed.petID, 0);
    EXPECT_EQ(shed.day, (OMDay{2026, 3, 7}));
    EXPECT_TRUE(shed.complete);
    EXPECT_EQ(shed.note, QString());
}

TEST_F(ShedRecord, IsWrittenAndReadBack) {
    auto shed = entry<ShedEntry>();
    shed.day = {2026, 2, 1};
    shed.complete = false;
    shed.note = u"stuck on a toe"_qs;
    shed = m_made.saved(shed);
    auto complete = entry<ShedEntry>();
    complete = m_made.saved(complete);
    const auto row = [&](qint64 id, const QString& day, qint64 whole, const QString& note) {
        return rowOf({{u"id"_qs, id},
                      {u"pet_id"_qs, m_pet.id},
                      {u"day"_qs, day},
                      {u"complete"_qs, whole},
                      {u"note"_qs, note}});
    };
    EXPECT_EQ(m_made.rows(u"shed"_qs), QList<SQLRow>({row(shed.id, u"2026-02-01"_qs, 0, u"stuck on a toe"_qs),
                                                      row(complete.id, u"2026-03-07"_qs, 1, u""_qs)}));
    EXPECT_EQ(m_made.store.sheds(m_pet.id), QList<ShedEntry>({complete, shed}));
}

TEST_F(ShedRecord, NeedsAPetAndNothingElse) {
    ShedEntry shed;
    EXPECT_EQ(refusal(shed, m_made.store), noPet);
    shed.petID = m_pet.id;
    EXPECT_EQ(refusal(shed, m_made.store), QString());
}

TEST_F(LogEntry, IsEqualFieldByField) {
    const auto weight = entry<WeightEntry>();
    auto otherWeight = weight;
    otherWeight.grams = 1;
    EXPECT_TRUE(weight == entry<WeightEntry>());
    EXPECT_FALSE(weight == otherWeight);
    const auto feeding = entry<FeedingEntry>();
    auto otherFeeding = feeding;
    otherFeeding.ate = false;
    EXPECT_TRUE(feeding == entry<FeedingEntry>());
    EXPECT_FALSE(feeding == otherFeeding);
    const auto shed = entry<ShedEntry>();
    auto otherShed = shed;
    otherShed.day = {2026, 3, 6};
    EXPECT_TRUE(shed == entry<ShedEntry>());
    EXPECT_FALSE(shed == otherShed);
}

} // namespace
} // namespace ormiva
