#include "ReminderKind.h"

namespace ormiva {

const std::array<ReminderKindInfo, 7>& allReminderKinds() {
    using enum ReminderKind;
    static const std::array<ReminderKindInfo, 7> table = {{
        {Feeding, QStringLiteral("feeding"), QStringLiteral("Feeding"), QStringLiteral("fork.knife"), 1},
        {Water, QStringLiteral("water"), QStringLiteral("Fresh water"), QStringLiteral("drop.fill"), 1},
        {Cleaning, QStringLiteral("cleaning"), QStringLiteral("Enclosure cleaning"),
         QStringLiteral("sparkles"), 7},
        {Uvb, QStringLiteral("uvb"), QStringLiteral("Replace UVB bulb"), QStringLiteral("sun.max.fill"), 182},
        {Weigh, QStringLiteral("weigh"), QStringLiteral("Weigh-in"), QStringLiteral("scalemass.fill"), 14},
        {Vet, QStringLiteral("vet"), QStringLiteral("Vet check-up"), QStringLiteral("stethoscope"), 365},
        {Other, QStringLiteral("other"), QStringLiteral("Other"), QStringLiteral("bell.fill"), 7},
    }};
    return table;
}

const ReminderKindInfo& info(ReminderKind kind) {
    return allReminderKinds().at(static_cast<std::size_t>(kind));
}

ReminderKind reminderKind(const QString& id) {
    for (const ReminderKindInfo& entry : allReminderKinds())
        if (entry.id == id)
            return entry.kind;
    return ReminderKind::Other;
}

} // namespace ormiva
