#pragma once

#include "LogEntries.h"

#include <QList>
#include <QString>

#include <optional>

/// What a pet's logs show, by arithmetic on the keeper's own numbers: never a norm of the species and never a
/// diagnosis.
namespace ormiva::LogAnalysis {

/// The bounds of the weight chart, in grams.
struct ChartScale {
    double lower = 0;
    double upper = 0;

    friend bool operator==(const ChartScale&, const ChartScale&) = default;
};
/// Around all weights, with room above and below. Absent for fewer than two.
std::optional<ChartScale> chartScale(const QList<WeightEntry>& weights);

/// How many of the five newest meals were refused. `feedings` as the store lists them, newest first.
int refusedMeals(const QList<FeedingEntry>& feedings);
/// The warning of the feeding panel, from three refused meals upward.
std::optional<QString> refusedMealsWarning(const QList<FeedingEntry>& feedings);

/// Whole days between one shed and the next, on average and cut off. `sheds` as the store lists them, newest
/// first. Absent for fewer than two.
std::optional<qint64> averageShedInterval(const QList<ShedEntry>& sheds);
/// "Average time between sheds: {n} days".
std::optional<QString> averageShedText(const QList<ShedEntry>& sheds);

/// The change from the next older weighing, as "+5.0 g (+1.2%)"; empty without an older one above 0.
QString changeText(const WeightEntry& weight, const std::optional<WeightEntry>& older);

/// How many of the newest weights a care sheet prints.
constexpr qsizetype careSheetWeights = 12;
/// The newest weights of the store's list (oldest first), newest first, at most `careSheetWeights`.
QList<WeightEntry> latestWeights(const QList<WeightEntry>& weights);
/// The line that says that there are more, when there are.
std::optional<QString> latestWeightsNote(const QList<WeightEntry>& weights);

} // namespace ormiva::LogAnalysis
