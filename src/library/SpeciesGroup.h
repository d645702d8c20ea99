#pragma once

#include <QString>

#include <array>
#include <optional>

namespace ormiva {

/// The kinds of animal, in the order of the library everywhere.
enum class SpeciesGroup { Mammal, Reptile, Amphibian, Bird, Invertebrate };

struct SpeciesGroupInfo {
    SpeciesGroup group;
    QString id; ///< the raw value in content files
    QString title;
    QString symbol;
};

const std::array<SpeciesGroupInfo, 5>& allSpeciesGroups();
const SpeciesGroupInfo& info(SpeciesGroup group);
std::optional<SpeciesGroup> speciesGroup(const QString& id);

} // namespace ormiva
