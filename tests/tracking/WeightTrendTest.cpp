#include "WeightTrend.h"

#include "TrackingPrinters.h"

#include <random>

namespace ormiva {

inline void PrintTo(const WeightTrend& trend, std::ostream* out) {
    *out << trend.text.toUtf8().constData() << (trend.loss ? " loss" : "") << (trend.warn ? " warn" : "");
}

namespace {

using namespace ormiva::testing;

/// Weights with ids 1, 2, 3 … in the given order.
QList<WeightEntry> weights(std::initializer_list<std::pair<OMDay, double>> list) {
    QList<WeightEntry> entries;
    for (const auto& [day, grams] : list) {
        WeightEntry entry;
        entry.id = entries.size() + 1;
        entry.day = day;
        entry.grams = grams;
        entries.append(entry);
    }
    return entries;
}

const OMDay march1{2026, 3, 1};
const OMDay march31{2026, 3, 31};

class Trend : public ::testing::Test {
    FixedCalendar m_calendar{utc(2026, 11, 21), u"Europe/Berlin"_qs};
};

TEST_F(Trend, NeedsTwoWeightsOfThe30Days) {
    EXPECT_EQ(WeightTrend::of({}), std::nullopt);
    EXPECT_EQ(WeightTrend::of(weights({{march1, 100}})), std::nullopt);
    EXPECT_EQ(WeightTrend::of(weights({{{2026, 2, 28}, 100}, {march31, 90}})), std::nullopt);
    EXPECT_EQ(WeightTrend::of(weights({{march1, 0}, {march31, 90}})), std::nullopt);
    EXPECT_EQ(WeightTrend::of(weights({{march1, -5}, {march31, 90}})), std::nullopt);
    EXPECT_EQ(WeightTrend::of(weights({{march1, std::nan("")}, {march31, 90}})), std::nullopt);
}

TEST_F(Trend, WarnsFromTenPercentDown) {
    EXPECT_EQ(WeightTrend::of(weights({{march1, 100}, {march31, 90}})),
              (WeightTrend{
                  u"Down 10.0 g (10.0%) since Mar 1, 2026 — a loss this size is worth a call to your vet."_qs,
                  true, true}));
    EXPECT_EQ(WeightTrend::of(weights({{march1, 100}, {march31, 90.01}})),
              (WeightTrend{u"Down 10.0 g (10.0%) since Mar 1, 2026"_qs, true, false}));
    EXPECT_EQ(WeightTrend::of(weights({{march1, 100}, {march31, 91}})),
              (WeightTrend{u"Down 9.0 g (9.0%) since Mar 1, 2026"_qs, true, false}));
    EXPECT_EQ(
        WeightTrend::of(weights({{march1, 100}, {march31, 0}})),
        (WeightTrend{
            u"Down 100.0 g (100.0%) since Mar 1, 2026 — a loss this size is worth a call to your vet."_qs,
            true, true}));
}

TEST_F(Trend, NeverWarnsOfAGain) {
    EXPECT_EQ(WeightTrend::of(weights({{march1, 100}, {march31, 250}})),
              (WeightTrend{u"Up 150.0 g (150.0%) since Mar 1, 2026"_qs, false, false}));
    EXPECT_EQ(WeightTrend::of(weights({{march31, 100}, {march31, 100}})),
              (WeightTrend{u"Up 0.0 g (0.0%) since Mar 31, 2026"_qs, false, false}));
}

TEST_F(Trend, IsBetweenTheFirstAndTheLastOfTheWindow) {
    EXPECT_EQ(
        WeightTrend::of(weights({{{2026, 1, 1}, 500}, {march1, 100}, {{2026, 3, 9}, 20}, {march31, 101}})),
        (WeightTrend{u"Up 1.0 g (1.0%) since Mar 1, 2026"_qs, false, false}));
}

TEST_F(Trend, CountsBackFromTheNewestWeightNotFromToday) {
    EXPECT_EQ(WeightTrend::of(weights({{{2019, 3, 1}, 100}, {{2019, 3, 2}, 80}}))->text,
              u"Down 20.0 g (20.0%) since Mar 1, 2019 — a loss this size is worth a call to your vet."_qs);
}

TEST_F(Trend, SpeaksOfGramsWhateverTheLocaleOfDates) {
    const FixedCalendar german(utc(2026, 11, 21), u"Europe/Berlin"_qs, u"de_DE"_qs);
    EXPECT_EQ(WeightTrend::of(weights({{march1, 100}, {march31, 91.5}}))->text,
              u"Down 8.5 g (8.5%) since 01.03.2026"_qs);
}

TEST_F(Trend, HasTheSignOfTheDifference) {
    std::mt19937 engine(11);
    std::uniform_real_distribution<double> grams(0.1, 5000);
    std::uniform_int_distribution<int> gap(0, 45);
    int trends = 0;
    for (int i = 0; i < 20'000; ++i) {
        OMDay day{2026, 1, 1};
        QList<WeightEntry> list;
        for (int n = 0; n < 4; ++n) {
            WeightEntry entry;
            entry.id = n + 1;
            entry.day = day;
            entry.grams = grams(engine);
            list.append(entry);
            day = day.adding(gap(engine));
        }
        const auto trend = WeightTrend::of(list);
        const auto base = std::ranges::find_if(
            list, [&](const WeightEntry& entry) { return entry.day.daysTo(list.last().day) <= 30; });
        ASSERT_EQ(trend.has_value(), base->id != 4);
        if (!trend)
            continue;
        ++trends;
        const double difference = list.last().grams - base->grams;
        ASSERT_EQ(trend->loss, difference < 0);
        ASSERT_EQ(trend->text.startsWith(u"Down "), difference < 0);
        ASSERT_EQ(trend->warn, difference / base->grams * 100 <= -10.0);
        ASSERT_EQ(trend->text.endsWith(u"a call to your vet."), trend->warn);
    }
    EXPECT_GE(trends, 5'000);
}

} // namespace
} // namespace ormiva
