#include "SymptomData.h"

#include <algorithm>

namespace ormiva {

const std::array<UrgencyInfo, 3>& allUrgencies() {
    using enum Urgency;
    static const std::array<UrgencyInfo, 3> table = {{
        {Monitor, QStringLiteral("monitor"),
         QStringLiteral("Monitor at home — call your vet if it continues or gets worse"),
         QStringLiteral("MONITOR"), QStringLiteral("eye.fill")},
        {Soon, QStringLiteral("soon"), QStringLiteral("See a vet within 24–48 hours"),
         QStringLiteral("VET IN 24–48 H"), QStringLiteral("clock.badge.exclamationmark.fill")},
        {Emergency, QStringLiteral("emergency"), QStringLiteral("Emergency — see an exotic vet NOW"),
         QStringLiteral("EMERGENCY NOW"), QStringLiteral("staroflife.fill")},
    }};
    return table;
}

const UrgencyInfo& info(Urgency urgency) {
    return allUrgencies().at(static_cast<std::size_t>(urgency));
}

std::optional<Urgency> urgency(const QString& id) {
    for (const UrgencyInfo& entry : allUrgencies())
        if (entry.id == id)
            return entry.urgency;
    return std::nullopt;
}

bool SymptomRule::applies(const Species& animal, const QSet<QString>& symptoms) const {
    const bool allTicked =
        std::all_of(when.begin(), when.end(), [&](const QString& sign) { return symptoms.contains(sign); });
    return allTicked && (!species || species->contains(animal.id)) &&
           (!groups || groups->contains(animal.group));
}

} // namespace ormiva
