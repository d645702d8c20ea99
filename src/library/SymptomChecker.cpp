#include "SymptomChecker.h"

#include "OMInfo.h"

#include <QRegularExpression>

#include <algorithm>

namespace ormiva {

namespace {

/// A word that names a kind of animal, and whether a species is of that kind.
struct AnimalWord {
    QRegularExpression word;
    bool (*names)(const Species&);
};

QRegularExpression wholeWord(const QString& pattern) {
    return QRegularExpression(QStringLiteral("\\b") + pattern + QStringLiteral("\\b"),
                              QRegularExpression::UseUnicodePropertiesOption);
}

/// Matched against a cause in lower case. Animals that no row names are never filtered.
const std::array<AnimalWord, 17>& animalWords() {
    using A = const Species&;
    static const std::array<AnimalWord, 17> table = {{
        {wholeWord(QStringLiteral("ferrets?")), [](A a) { return a.id == u"ferret"; }},
        {wholeWord(QStringLiteral("rabbits?")), [](A a) { return a.id == u"rabbit"; }},
        {wholeWord(QStringLiteral("guinea pigs?")), [](A a) { return a.id == u"guinea-pig"; }},
        {wholeWord(QStringLiteral("chinchillas?")), [](A a) { return a.id == u"chinchilla"; }},
        {wholeWord(QStringLiteral("gerbils?")), [](A a) { return a.id == u"gerbil"; }},
        {wholeWord(QStringLiteral("hedgehogs?")), [](A a) { return a.id == u"hedgehog"; }},
        {wholeWord(QStringLiteral("sugar gliders?")), [](A a) { return a.id == u"sugar-glider"; }},
        {wholeWord(QStringLiteral("snakes?")),
         [](A a) { return a.id == u"ball-python" || a.id == u"corn-snake" || a.id == u"kingsnake"; }},
        {wholeWord(QStringLiteral("turtles?")), [](A a) { return a.id == u"red-eared-slider"; }},
        {wholeWord(QStringLiteral("tortoises?")), [](A a) { return a.id.endsWith(u"tortoise"); }},
        {wholeWord(QStringLiteral("frogs?")), [](A a) { return a.id.endsWith(u"frog"); }},
        {wholeWord(QStringLiteral("tarantulas?")), [](A a) { return a.id == u"tarantula"; }},
        {wholeWord(QStringLiteral("hermit crabs?")), [](A a) { return a.id == u"hermit-crab"; }},
        {wholeWord(QStringLiteral("birds?")), [](A a) { return a.group == SpeciesGroup::Bird; }},
        {wholeWord(QStringLiteral("reptiles?")), [](A a) { return a.group == SpeciesGroup::Reptile; }},
        {wholeWord(QStringLiteral("amphibians?")), [](A a) { return a.group == SpeciesGroup::Amphibian; }},
        {wholeWord(QStringLiteral("mammals?")), [](A a) { return a.group == SpeciesGroup::Mammal; }},
    }};
    return table;
}

} // namespace

QStringList SymptomResult::possibleCauses() const {
    QList<SymptomRule> rules = matched;
    std::ranges::stable_sort(rules, std::ranges::greater{},
                             [](const auto& rule) { return rank(rule.urgency); });
    QSet<QString> seen;
    QStringList lines;
    for (const SymptomRule& rule : rules)
        for (const QString& cause : rule.causes) {
            if (seen.contains(cause))
                continue;
            seen.insert(cause);
            if (!species || SymptomChecker::causeAppliesTo(cause, *species))
                lines.append(QStringLiteral("Possible: ") + cause);
        }
    return lines;
}

QStringList SymptomResult::advice() const {
    const bool anyAsUrgent =
        std::ranges::any_of(matched, [this](const auto& rule) { return rule.urgency == urgency; });
    QStringList lines;
    for (const SymptomRule& rule : matched)
        if ((rule.urgency == urgency || !anyAsUrgent) && !lines.contains(rule.advice))
            lines.append(rule.advice);
    return lines;
}

QStringList SymptomResult::sourceKeys() const {
    QStringList keys;
    for (const SymptomRule& rule : matched)
        keys += rule.s;
    keys.removeDuplicates();
    std::ranges::sort(keys, {}, [](const QString& key) { return key.toUcs4(); });
    return keys;
}

QString SymptomResult::headline() const {
    switch (urgency) {
    case Urgency::Monitor:
        return QStringLiteral(
            "Possibly minor — monitor closely and call your vet if it continues or gets worse.");
    case Urgency::Soon:
        return QStringLiteral("Possible problem that needs a vet within 24–48 hours.");
    case Urgency::Emergency:
        return QStringLiteral("Possible emergency. Contact an exotic-animal vet or emergency clinic now.");
    }
    Q_UNREACHABLE();
}

SymptomResult SymptomChecker::check(const Species& species, const QSet<QString>& symptoms,
                                    const CareLibrary& library) {
    SymptomResult result;
    result.species = species;

    bool anyTicked = false;
    for (const SymptomDef& sign : library.symptoms(species)) {
        if (!symptoms.contains(sign.id))
            continue;
        anyTicked = true;
        if (sign.isRedFlag() && !mutateIgnoreRedFlags)
            result.redFlags.append(sign);
    }

    for (const SymptomRule& rule : library.rules()) {
        if (mutateIgnoreRedFlags && rule.id.startsWith(u"rf-"))
            continue;
        if (!rule.applies(species, symptoms))
            continue;
        result.matched.append(rule);
        result.urgency = std::max(result.urgency, rule.urgency);
    }

    if (!result.redFlags.isEmpty())
        result.urgency = Urgency::Emergency;
    else if (result.matched.isEmpty() && anyTicked)
        result.urgency = Urgency::Soon; // Signs that no rule covers are never a reason for calm.
    return result;
}

bool SymptomChecker::causeAppliesTo(const QString& cause, const Species& species) {
    const QString lower = cause.toLower();
    bool namesAnimals = false;
    for (const AnimalWord& entry : animalWords()) {
        if (!entry.word.match(lower).hasMatch())
            continue;
        if (entry.names(species))
            return true;
        namesAnimals = true;
    }
    return !namesAnimals;
}

QList<SymptomChecker::VetLink> SymptomChecker::vetLinks(SpeciesGroup group) {
    switch (group) {
    case SpeciesGroup::Mammal:
        return {{QStringLiteral("AEMV — Find an exotic mammal vet"), OMInfo::aemv},
                {QStringLiteral("ARAV — Find a vet"), OMInfo::arav}};
    case SpeciesGroup::Reptile:
    case SpeciesGroup::Amphibian:
        return {{QStringLiteral("ARAV — Find a reptile & amphibian vet"), OMInfo::arav},
                {QStringLiteral("AEMV — Find an exotic vet"), OMInfo::aemv}};
    case SpeciesGroup::Bird:
        return {{QStringLiteral("AAV — Association of Avian Veterinarians"), OMInfo::aav},
                {QStringLiteral("AEMV — Find an exotic vet"), OMInfo::aemv}};
    case SpeciesGroup::Invertebrate:
        return {{QStringLiteral("AEMV — Find an exotic vet"), OMInfo::aemv},
                {QStringLiteral("ARAV — Find a vet"), OMInfo::arav}};
    }
    Q_UNREACHABLE();
}

} // namespace ormiva
