#pragma once

#include "Species.h"

#include <QList>
#include <QSet>

#include <array>
#include <optional>

namespace ormiva {

/// How soon a vet is needed, from least to most urgent; compared by rank.
enum class Urgency { Monitor, Soon, Emergency };

struct UrgencyInfo {
    Urgency urgency;
    QString id; ///< the raw value in content files
    QString title;
    QString shortTitle;
    QString symbol;
};
const std::array<UrgencyInfo, 3>& allUrgencies();
const UrgencyInfo& info(Urgency urgency);
std::optional<Urgency> urgency(const QString& id);
/// 0 monitor, 1 soon, 2 emergency.
constexpr int rank(Urgency urgency) {
    return static_cast<int>(urgency);
}

/// One sign that a keeper can tick.
struct SymptomDef {
    QString id;
    QString label;
    std::optional<bool> redFlag;
    QList<SpeciesGroup> groups; ///< the animals for which it is offered; empty means none at all

    /// True for a sign that is an emergency by itself.
    bool isRedFlag() const { return redFlag.value_or(false); }

    friend bool operator==(const SymptomDef&, const SymptomDef&) = default;
};

/// What some signs together suggest in some animals.
struct SymptomRule {
    QString id;
    QStringList when;                          ///< the signs that must all be ticked; empty is unconditional
    std::optional<QStringList> species;        ///< absent: any; empty: none
    std::optional<QList<SpeciesGroup>> groups; ///< absent: any; empty: none
    Urgency urgency = Urgency::Monitor;
    QStringList causes; ///< noun phrases without the word "Possible"
    QString advice;
    QStringList s; ///< source keys

    /// True when every sign of `when` is ticked and both the species and its group are listed where lists
    /// are.
    bool applies(const Species& animal, const QSet<QString>& symptoms) const;

    friend bool operator==(const SymptomRule&, const SymptomRule&) = default;
};

/// The whole of symptoms.json, in file order: the order of the tick boxes and of the advice.
struct SymptomFile {
    QList<SymptomDef> symptoms;
    QList<SymptomRule> rules;
};

} // namespace ormiva
