#include "WeightTrend.h"

#include <algorithm>
#include <cmath>

namespace ormiva {

namespace {

constexpr qint64 windowInDays = 30;
constexpr double warningPercent = -10.0;

} // namespace

std::optional<WeightTrend> WeightTrend::of(const QList<WeightEntry>& weights) {
    if (weights.isEmpty())
        return std::nullopt;
    const WeightEntry& last = weights.last();
    const OMDay cutoff = last.day.adding(-windowInDays);
    const auto base =
        std::ranges::find_if(weights, [&](const WeightEntry& entry) { return entry.day >= cutoff; });
    if (base == weights.end() || base->id == last.id || !(base->grams > 0))
        return std::nullopt;

    const double delta = last.grams - base->grams;
    const double percent = delta / base->grams * 100;
    WeightTrend trend;
    trend.loss = delta < 0;
    trend.warn = percent <= warningPercent;
    trend.text = QString::asprintf("%s %.1f g (%.1f%%) since ", trend.loss ? "Down" : "Up", std::abs(delta),
                                   std::abs(percent)) +
                 base->day.display();
    if (trend.warn)
        trend.text += QStringLiteral(" — a loss this size is worth a call to your vet.");
    return trend;
}

} // namespace ormiva
