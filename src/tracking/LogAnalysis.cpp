#include "LogAnalysis.h"

#include <algorithm>

namespace ormiva::LogAnalysis {

std::optional<ChartScale> chartScale(const QList<WeightEntry>& weights) {
    if (weights.size() < 2)
        return std::nullopt;
    const auto [least, most] = std::ranges::minmax(weights, {}, &WeightEntry::grams);
    constexpr double leastSpan = 0.02; // of the heaviest weight, so that noise doesn't fill the chart
    constexpr double room = 0.35;      // of the span, above and below
    const double pad = std::max(most.grams - least.grams, most.grams * leastSpan) * room;
    return ChartScale{std::max(0.0, least.grams - pad), most.grams + pad};
}

int refusedMeals(const QList<FeedingEntry>& feedings) {
    constexpr qsizetype looked = 5;
    return static_cast<int>(
        std::ranges::count(feedings.first(std::min(feedings.size(), looked)), false, &FeedingEntry::ate));
}

std::optional<QString> refusedMealsWarning(const QList<FeedingEntry>& feedings) {
    constexpr int worthAWarning = 3;
    const int refused = refusedMeals(feedings);
    if (refused < worthAWarning)
        return std::nullopt;
    return QStringLiteral("%1 of the last 5 meals were refused. See “Not eating” on the care sheet.")
        .arg(refused);
}

std::optional<qint64> averageShedInterval(const QList<ShedEntry>& sheds) {
    if (sheds.size() < 2)
        return std::nullopt;
    qint64 sum = 0;
    for (qsizetype i = 1; i < sheds.size(); ++i)
        sum += sheds.at(i).day.daysTo(sheds.at(i - 1).day);
    return sum / (sheds.size() - 1);
}

std::optional<QString> averageShedText(const QList<ShedEntry>& sheds) {
    const auto days = averageShedInterval(sheds);
    if (!days)
        return std::nullopt;
    return QStringLiteral("Average time between sheds: %1 days").arg(*days);
}

QString changeText(const WeightEntry& weight, const std::optional<WeightEntry>& older) {
    if (!older || !(older->grams > 0))
        return {};
    const double delta = weight.grams - older->grams;
    return QString::asprintf("%+.1f g (%+.1f%%)", delta, delta / older->grams * 100);
}

QList<WeightEntry> latestWeights(const QList<WeightEntry>& weights) {
    QList<WeightEntry> latest = weights.last(std::min(weights.size(), careSheetWeights));
    std::ranges::reverse(latest);
    return latest;
}

std::optional<QString> latestWeightsNote(const QList<WeightEntry>& weights) {
    if (weights.size() <= careSheetWeights)
        return std::nullopt;
    return QStringLiteral("Showing the latest 12 of %1 weights. Records for the Vet (PDF) prints them all.")
        .arg(weights.size());
}

} // namespace ormiva::LogAnalysis
