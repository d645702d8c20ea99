#include "LogAnalysis.h"

#include "TrackingPrinters.h"

namespace ormiva {

namespace LogAnalysis {
inline void PrintTo(const ChartScale& scale, std::ostream* out) {
    *out << scale.lower << " to " << scale.upper;
}
} // namespace LogAnalysis

inline void PrintTo(const WeightEntry& entry, std::ostream* out) {
    *out << entry.grams;
}

namespace {

using namespace ormiva::testing;
using namespace ormiva::LogAnalysis;

WeightEntry weight(double grams) {
    WeightEntry entry;
    entry.grams = grams;
    return entry;
}

QList<WeightEntry> weights(const QList<double>& grams) {
    QList<WeightEntry> entries;
    for (const double value : grams)
        entries.append(weight(value));
    return entries;
}

/// Newest first: whether each meal was eaten.
QList<FeedingEntry> meals(const QList<bool>& eaten) {
    QList<FeedingEntry> entries;
    for (const bool ate : eaten) {
        entries.append(FeedingEntry());
        entries.last().ate = ate;
    }
    return entries;
}

QList<ShedEntry> sheds(const QList<OMDay>& days) {
    QList<ShedEntry> entries;
    for (const OMDay& day : days) {
        entries.append(ShedEntry());
        entries.last().day = day;
    }
    return entries;
}

TEST(ChartScale, LeavesRoomAroundTheWeights) {
    EXPECT_EQ(chartScale({}), std::nullopt);
    EXPECT_EQ(chartScale(weights({500})), std::nullopt);
    EXPECT_EQ(chartScale(weights({500, 500})), (ChartScale{496.5, 503.5}));
    EXPECT_EQ(chartScale(weights({100, 200, 150})), (ChartScale{65, 235}));
    EXPECT_EQ(chartScale(weights({1, 100})), (ChartScale{0, 134.65}));
    // A span of exactly 2 % of the heaviest.
    EXPECT_EQ(chartScale(weights({98, 100})), (ChartScale{97.3, 100.7}));
}

TEST(RefusedMeals, CountOfTheFiveNewest) {
    EXPECT_EQ(refusedMeals({}), 0);
    EXPECT_EQ(refusedMeals(meals({false, true, false, true, false, false, false})), 3);
    EXPECT_EQ(refusedMeals(meals({true, true, true, true, true, false})), 0);
    EXPECT_EQ(refusedMealsWarning(meals({false, false, true, true, true})), std::nullopt);
    EXPECT_EQ(refusedMealsWarning(meals({false, true, false, false})),
              u"3 of the last 5 meals were refused. See “Not eating” on the care sheet."_qs);
    EXPECT_EQ(refusedMealsWarning(meals({false, false, false, false, false, false})),
              u"5 of the last 5 meals were refused. See “Not eating” on the care sheet."_qs);
}

TEST(AverageShed, IsCutOffToWholeDays) {
    const FixedCalendar calendar(utc(2026, 11, 21), u"Europe/Berlin"_qs);
    EXPECT_EQ(averageShedInterval({}), std::nullopt);
    EXPECT_EQ(averageShedText(sheds({{2026, 3, 1}})), std::nullopt);
    EXPECT_EQ(averageShedText(sheds({{2026, 3, 22}, {2026, 3, 11}, {2026, 3, 1}})),
              u"Average time between sheds: 10 days"_qs);
    // Over the change of the clocks on March 29.
    EXPECT_EQ(averageShedInterval(sheds({{2026, 4, 1}, {2026, 3, 28}})), 4);
    EXPECT_EQ(averageShedInterval(sheds({{2026, 3, 1}, {2026, 3, 1}})), 0);
}

TEST(Change, IsFromTheNextOlderWeight) {
    EXPECT_EQ(changeText(weight(100), std::nullopt), QString());
    EXPECT_EQ(changeText(weight(100), weight(0)), QString());
    EXPECT_EQ(changeText(weight(105), weight(100)), u"+5.0 g (+5.0%)"_qs);
    EXPECT_EQ(changeText(weight(421), weight(430.5)), u"-9.5 g (-2.2%)"_qs);
    EXPECT_EQ(changeText(weight(100), weight(100)), u"+0.0 g (+0.0%)"_qs);
}

TEST(LatestWeights, AreTheTwelveNewest) {
    QList<double> grams;
    for (int i = 1; i <= 12; ++i)
        grams.append(i);
    EXPECT_EQ(latestWeights({}), QList<WeightEntry>());
    EXPECT_EQ(latestWeights(weights({1, 2})), weights({2, 1}));
    EXPECT_EQ(latestWeights(weights(grams)).size(), 12);
    EXPECT_EQ(latestWeightsNote(weights(grams)), std::nullopt);
    grams.append(13);
    EXPECT_EQ(latestWeights(weights(grams)), weights({13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2}));
    EXPECT_EQ(latestWeightsNote(weights(grams)),
              u"Showing the latest 12 of 13 weights. Records for the Vet (PDF) prints them all."_qs);
}

} // namespace
} // namespace ormiva
