#pragma once

#include "CareLibrary.h"

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <optional>

namespace ormiva {

/// What ticked signs suggest for one animal: an urgency and possible causes, never a diagnosis.
struct SymptomResult {
    Urgency urgency = Urgency::Monitor;
    QList<SymptomRule> matched;     ///< the rules that applied, in file order
    QList<SymptomDef> redFlags;     ///< the ticked signs that are emergencies by themselves, in file order
    std::optional<Species> species; ///< absent only in a result made by hand

    /// One line each, beginning with "Possible: ", the most urgent rules' causes first, without repeats and
    /// without those that name other animals only.
    QStringList possibleCauses() const;
    /// That of the rules as urgent as the result, or of all rules when there are none, in file order and
    /// without repeats. So an emergency never shows a more relaxed time frame beside it.
    QStringList advice() const;
    /// The keys of all matched rules, in the order of their code points, without repeats.
    QStringList sourceKeys() const;
    /// The sentence that heads the result.
    QString headline() const;

    friend bool operator==(const SymptomResult&, const SymptomResult&) = default;
};

/// Pure computation over the library: the same input gives the same result, and nothing fails.
namespace SymptomChecker {

/// Only the self-test sets it, to prove that its checks notice: red flags are ignored, and with them the
/// rules whose ids begin with "rf-".
inline bool mutateIgnoreRedFlags = false;

/// The urgency is the strongest of the rules that apply; emergency with any red flag; and at least soon when
/// signs are ticked that no rule speaks of. Ids that are not signs of this kind of animal are ignored.
SymptomResult check(const Species& species, const QSet<QString>& symptoms,
                    const CareLibrary& library = CareLibrary::shared());

/// False when `cause` names animals and none of them is of this species.
bool causeAppliesTo(const QString& cause, const Species& species);

struct VetLink {
    QString title;
    QUrl url;

    friend bool operator==(const VetLink&, const VetLink&) = default;
};

/// The two directories in which to look for a vet for such an animal, the more fitting one first.
QList<VetLink> vetLinks(SpeciesGroup group);

} // namespace SymptomChecker
} // namespace ormiva
