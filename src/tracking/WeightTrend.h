#pragma once

#include "LogEntries.h"

#include <QList>
#include <QString>

#include <optional>

namespace ormiva {

/// How a pet's weight moved in the 30 days before its last weighing, between the first and the last weight of
/// that time.
struct WeightTrend {
    QString text;      ///< the sentence under the chart, always in grams
    bool loss = false; ///< the last weight is below the first
    bool warn = false; ///< by 10 % or more

    /// From the store's list, oldest first. Absent when the 30 days hold one weight only, or begin with none
    /// above 0.
    static std::optional<WeightTrend> of(const QList<WeightEntry>& weights);

    friend bool operator==(const WeightTrend&, const WeightTrend&) = default;
};

} // namespace ormiva
