#pragma once

#include <QString>

#include <array>

namespace ormiva {

enum class ReminderKind { Feeding, Water, Cleaning, Uvb, Weigh, Vet, Other };

struct ReminderKindInfo {
    ReminderKind kind;
    QString id; ///< the raw value in the records
    QString title;
    QString symbol;
    int suggestedDays; ///< what the editor proposes as the interval
};

/// All kinds, in the order in which they are offered.
const std::array<ReminderKindInfo, 7>& allReminderKinds();
const ReminderKindInfo& info(ReminderKind kind);
/// The kind with that raw value; an unknown one reads as `Other`.
ReminderKind reminderKind(const QString& id);

} // namespace ormiva
