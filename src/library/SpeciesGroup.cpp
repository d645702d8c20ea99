#include "SpeciesGroup.h"

namespace ormiva {

const std::array<SpeciesGroupInfo, 5>& allSpeciesGroups() {
    using enum SpeciesGroup;
    static const std::array<SpeciesGroupInfo, 5> table = {{
        {Mammal, QStringLiteral("mammal"), QStringLiteral("Mammals"), QStringLiteral("pawprint.fill")},
        {Reptile, QStringLiteral("reptile"), QStringLiteral("Reptiles"), QStringLiteral("lizard.fill")},
        {Amphibian, QStringLiteral("amphibian"), QStringLiteral("Amphibians"), QStringLiteral("drop.fill")},
        {Bird, QStringLiteral("bird"), QStringLiteral("Birds"), QStringLiteral("bird.fill")},
        {Invertebrate, QStringLiteral("invertebrate"), QStringLiteral("Invertebrates"),
         QStringLiteral("ant.fill")},
    }};
    return table;
}

const SpeciesGroupInfo& info(SpeciesGroup group) {
    return allSpeciesGroups().at(static_cast<std::size_t>(group));
}

std::optional<SpeciesGroup> speciesGroup(const QString& id) {
    for (const SpeciesGroupInfo& entry : allSpeciesGroups())
        if (entry.id == id)
            return entry.group;
    return std::nullopt;
}

} // namespace ormiva
