#include "SymptomChecker.h"

#include "LibraryPrinters.h"

#include <gtest/gtest.h>

namespace ormiva {
namespace {

using namespace ormiva::testing;

Species animal(const QString& id, SpeciesGroup group) {
    Species animal;
    animal.id = id;
    animal.group = group;
    return animal;
}

const Species rabbit = animal(u"rabbit"_qs, SpeciesGroup::Mammal);
const Species ferret = animal(u"ferret"_qs, SpeciesGroup::Mammal);
const Species hamster = animal(u"hamster"_qs, SpeciesGroup::Mammal);
const Species gecko = animal(u"leopard-gecko"_qs, SpeciesGroup::Reptile);
const Species budgie = animal(u"budgie"_qs, SpeciesGroup::Bird);

QJsonObject rule(const QString& id, const QStringList& when, const QString& urgency,
                 const QStringList& causes, const QString& advice, const QStringList& keys = {u"src-a"_qs}) {
    QJsonObject rule = Json::rule(id, when, urgency);
    rule[u"causes"_qs] = Json::list(causes);
    rule[u"advice"_qs] = advice;
    rule[u"s"_qs] = Json::list(keys);
    return rule;
}

/// A library of made-up signs: "collapse" is a red flag with its own rule, "fit" one without; "wheeze" has no
/// rule; "shed" is a sign of reptiles only.
class SymptomCheck : public ::testing::Test {
protected:
    SymptomCheck() {
        const QStringList both = {u"mammal"_qs, u"reptile"_qs, u"bird"_qs};
        QJsonObject collapse = Json::symptom(u"collapse"_qs, both);
        collapse[u"redFlag"_qs] = true;
        QJsonObject fit = Json::symptom(u"fit"_qs, both);
        fit[u"redFlag"_qs] = true;
        QJsonObject listed = rule(u"rabbit-eat"_qs, {u"not-eating"_qs}, u"emergency"_qs,
                                  {u"gut stasis"_qs, u"scurvy in guinea pigs"_qs}, u"Go now."_qs, {u"z"_qs});
        listed[u"species"_qs] = Json::list({u"rabbit"_qs});
        QJsonObject leftOver =
            rule(u"raw"_qs, {u"shed"_qs, u"limp"_qs}, u"soon"_qs, {u"a mystery"_qs}, u"Raw."_qs);
        leftOver[u"groups"_qs] = Json::list({u"mammal"_qs});
        m_folder.sources(Json::bytes(Json::sourceFile({Json::source(u"src-a"_qs)})));
        m_folder.symptoms(Json::bytes(Json::symptomFile(
            {Json::symptom(u"not-eating"_qs, both), collapse, fit, Json::symptom(u"wheeze"_qs, both),
             Json::symptom(u"limp"_qs, both), Json::symptom(u"sneeze"_qs, both),
             Json::symptom(u"shed"_qs, {u"reptile"_qs})},
            {rule(u"eat"_qs, {u"not-eating"_qs}, u"monitor"_qs, {u"stress"_qs, u"cold"_qs}, u"Watch."_qs,
                  {u"b"_qs, u"a"_qs}),
             rule(u"rf-collapse"_qs, {u"collapse"_qs}, u"emergency"_qs,
                  {u"shock"_qs, u"low blood sugar in ferrets"_qs}, u"Call now."_qs, {u"c"_qs, u"a"_qs}),
             rule(u"limp"_qs, {u"limp"_qs}, u"soon"_qs, {u"a sprain"_qs, u"stress"_qs}, u"Book a visit."_qs),
             rule(u"sneeze"_qs, {u"sneeze"_qs}, u"monitor"_qs, {u"dust"_qs, u"stress"_qs}, u"Watch."_qs),
             listed, rule(u"shed"_qs, {u"shed"_qs}, u"monitor"_qs, {u"dry air"_qs}, u"Mist."_qs),
             leftOver})));
        m_library.emplace(m_folder.path());
        EXPECT_EQ(m_library->loadProblems(), QStringList());
    }
    ~SymptomCheck() override { SymptomChecker::mutateIgnoreRedFlags = false; }

    SymptomResult check(const Species& species, const QSet<QString>& symptoms) const {
        return SymptomChecker::check(species, symptoms, *m_library);
    }
    static QStringList ruleIds(const SymptomResult& result) {
        QStringList ids;
        for (const SymptomRule& rule : result.matched)
            ids.append(rule.id);
        return ids;
    }
    static QStringList flagIds(const SymptomResult& result) {
        QStringList ids;
        for (const SymptomDef& sign : result.redFlags)
            ids.append(sign.id);
        return ids;
    }

private:
    ContentFolder m_folder;
    std::optional<CareLibrary> m_library;
};

TEST_F(SymptomCheck, OfNothingIsCalmAndEmpty) {
    const SymptomResult result = check(gecko, {});
    EXPECT_EQ(result, (SymptomResult{Urgency::Monitor, {}, {}, gecko}));
    EXPECT_EQ(result.possibleCauses(), QStringList());
    EXPECT_EQ(result.advice(), QStringList());
    EXPECT_EQ(result.sourceKeys(), QStringList());
}

TEST_F(SymptomCheck, TakesTheStrongestRule) {
    EXPECT_EQ(check(gecko, {u"not-eating"_qs}).urgency, Urgency::Monitor);
    EXPECT_EQ(check(rabbit, {u"not-eating"_qs}).urgency, Urgency::Emergency);
    const SymptomResult mixed = check(gecko, {u"limp"_qs, u"not-eating"_qs});
    EXPECT_EQ(mixed.urgency, Urgency::Soon);
    EXPECT_EQ(ruleIds(mixed), QStringList({u"eat"_qs, u"limp"_qs}));
}

TEST_F(SymptomCheck, OfARedFlagIsAnEmergencyWhateverElseApplies) {
    const SymptomResult result = check(gecko, {u"not-eating"_qs, u"collapse"_qs});
    EXPECT_EQ(result.urgency, Urgency::Emergency);
    EXPECT_EQ(flagIds(result), QStringList({u"collapse"_qs}));
    EXPECT_EQ(result.advice(), QStringList({u"Call now."_qs}));
}

TEST_F(SymptomCheck, OfARedFlagWithoutARuleShowsTheAdviceThatThereIs) {
    const SymptomResult alone = check(gecko, {u"fit"_qs});
    EXPECT_EQ(alone.urgency, Urgency::Emergency);
    EXPECT_EQ(alone.advice(), QStringList());
    const SymptomResult withOthers = check(gecko, {u"fit"_qs, u"limp"_qs, u"not-eating"_qs});
    EXPECT_EQ(withOthers.urgency, Urgency::Emergency);
    EXPECT_EQ(withOthers.advice(), QStringList({u"Watch."_qs, u"Book a visit."_qs}));
}

TEST_F(SymptomCheck, OfASignWithoutARuleIsNotCalm) {
    const SymptomResult result = check(gecko, {u"wheeze"_qs});
    EXPECT_EQ(result, (SymptomResult{Urgency::Soon, {}, {}, gecko}));
    EXPECT_EQ(result.possibleCauses() + result.advice() + result.sourceKeys(), QStringList());
}

TEST_F(SymptomCheck, LetsACalmRuleStandBesideASignWithoutOne) {
    EXPECT_EQ(check(gecko, {u"wheeze"_qs, u"not-eating"_qs}).urgency, Urgency::Monitor);
}

TEST_F(SymptomCheck, IgnoresSignsOfOtherAnimalsAndUnknownOnes) {
    EXPECT_EQ(check(budgie, {u"no-such-sign"_qs}), (SymptomResult{Urgency::Monitor, {}, {}, budgie}));
    // The rule "shed" has no groups of its own, so it applies by its words alone.
    EXPECT_EQ(ruleIds(check(rabbit, {u"shed"_qs})), QStringList({u"shed"_qs}));
    EXPECT_EQ(check(rabbit, {u"shed"_qs}).urgency, Urgency::Monitor);
    // A left-over tick counts only where a rule itself names it and fits the animal.
    EXPECT_EQ(ruleIds(check(rabbit, {u"shed"_qs, u"limp"_qs})),
              QStringList({u"limp"_qs, u"shed"_qs, u"raw"_qs}));
    EXPECT_EQ(ruleIds(check(gecko, {u"shed"_qs, u"limp"_qs})), QStringList({u"limp"_qs, u"shed"_qs}));
}

TEST_F(SymptomCheck, KeepsTheOrderOfTheFile) {
    const SymptomResult result = check(ferret, {u"sneeze"_qs, u"fit"_qs, u"collapse"_qs, u"not-eating"_qs});
    EXPECT_EQ(flagIds(result), QStringList({u"collapse"_qs, u"fit"_qs}));
    EXPECT_EQ(ruleIds(result), QStringList({u"eat"_qs, u"rf-collapse"_qs, u"sneeze"_qs}));
}

TEST_F(SymptomCheck, ListsTheCausesOfUrgentRulesFirstAndEachOnce) {
    EXPECT_EQ(check(gecko, {u"not-eating"_qs, u"limp"_qs, u"sneeze"_qs}).possibleCauses(),
              QStringList({u"Possible: a sprain"_qs, u"Possible: stress"_qs, u"Possible: cold"_qs,
                           u"Possible: dust"_qs}));
}

TEST_F(SymptomCheck, LeavesOutTheCausesOfOtherAnimals) {
    EXPECT_EQ(check(ferret, {u"collapse"_qs}).possibleCauses(),
              QStringList({u"Possible: shock"_qs, u"Possible: low blood sugar in ferrets"_qs}));
    EXPECT_EQ(check(rabbit, {u"collapse"_qs}).possibleCauses(), QStringList({u"Possible: shock"_qs}));
    EXPECT_EQ(check(rabbit, {u"not-eating"_qs}).possibleCauses(),
              QStringList({u"Possible: gut stasis"_qs, u"Possible: stress"_qs, u"Possible: cold"_qs}));
    SymptomResult byHand = check(rabbit, {u"collapse"_qs});
    byHand.species.reset();
    EXPECT_EQ(byHand.possibleCauses(),
              QStringList({u"Possible: shock"_qs, u"Possible: low blood sugar in ferrets"_qs}));
}

TEST_F(SymptomCheck, GivesTheSameAdviceOnce) {
    EXPECT_EQ(check(gecko, {u"not-eating"_qs, u"sneeze"_qs}).advice(), QStringList({u"Watch."_qs}));
}

TEST_F(SymptomCheck, SortsItsSources) {
    EXPECT_EQ(check(rabbit, {u"not-eating"_qs, u"collapse"_qs}).sourceKeys(),
              QStringList({u"a"_qs, u"b"_qs, u"c"_qs, u"z"_qs}));
}

TEST_F(SymptomCheck, WithRedFlagsSwitchedOffFallsToSoon) {
    SymptomChecker::mutateIgnoreRedFlags = true;
    EXPECT_EQ(check(gecko, {u"collapse"_qs}), (SymptomResult{Urgency::Soon, {}, {}, gecko}));
    EXPECT_EQ(ruleIds(check(rabbit, {u"not-eating"_qs})), QStringList({u"eat"_qs, u"rabbit-eat"_qs}));
}

TEST(SymptomResult, SortsKeysByCodePoint) {
    SymptomResult result;
    SymptomRule rule;
    rule.s = {u"\uFF21"_qs, u"b"_qs, u"\U0001F40D"_qs, u"B"_qs, u"b"_qs, u"ab"_qs, u"a-b"_qs};
    result.matched = {rule};
    EXPECT_EQ(result.sourceKeys(),
              QStringList({u"B"_qs, u"a-b"_qs, u"ab"_qs, u"b"_qs, u"\uFF21"_qs, u"\U0001F40D"_qs}));
}

TEST(SymptomResult, HasAHeadlineForEachUrgency) {
    SymptomResult result;
    EXPECT_EQ(result.headline(),
              u"Possibly minor — monitor closely and call your vet if it continues or gets worse."_qs);
    result.urgency = Urgency::Soon;
    EXPECT_EQ(result.headline(), u"Possible problem that needs a vet within 24–48 hours."_qs);
    result.urgency = Urgency::Emergency;
    EXPECT_EQ(result.headline(),
              u"Possible emergency. Contact an exotic-animal vet or emergency clinic now."_qs);
}

/// Every animal that the words can name, and some that they can't.
const QList<Species> animals = {
    ferret,
    rabbit,
    animal(u"guinea-pig"_qs, SpeciesGroup::Mammal),
    animal(u"chinchilla"_qs, SpeciesGroup::Mammal),
    animal(u"gerbil"_qs, SpeciesGroup::Mammal),
    animal(u"hedgehog"_qs, SpeciesGroup::Mammal),
    animal(u"sugar-glider"_qs, SpeciesGroup::Mammal),
    hamster,
    animal(u"ball-python"_qs, SpeciesGroup::Reptile),
    animal(u"corn-snake"_qs, SpeciesGroup::Reptile),
    animal(u"kingsnake"_qs, SpeciesGroup::Reptile),
    animal(u"red-eared-slider"_qs, SpeciesGroup::Reptile),
    animal(u"russian-tortoise"_qs, SpeciesGroup::Reptile),
    animal(u"sulcata-tortoise"_qs, SpeciesGroup::Reptile),
    gecko,
    animal(u"pacman-frog"_qs, SpeciesGroup::Amphibian),
    animal(u"whites-tree-frog"_qs, SpeciesGroup::Amphibian),
    animal(u"axolotl"_qs, SpeciesGroup::Amphibian),
    animal(u"tarantula"_qs, SpeciesGroup::Invertebrate),
    animal(u"hermit-crab"_qs, SpeciesGroup::Invertebrate),
    budgie,
};

QStringList animalsWith(const QString& cause) {
    QStringList ids;
    for (const Species& animal : animals)
        if (SymptomChecker::causeAppliesTo(cause, animal))
            ids.append(animal.id);
    return ids;
}

QStringList animalsOf(SpeciesGroup group) {
    QStringList ids;
    for (const Species& animal : animals)
        if (animal.group == group)
            ids.append(animal.id);
    return ids;
}

TEST(CauseFilter, KeepsACauseForTheAnimalsThatItNames) {
    const QList<std::pair<QString, QStringList>> cases = {
        {u"insulinoma in ferrets"_qs, {u"ferret"_qs}},
        {u"a rabbit disease"_qs, {u"rabbit"_qs}},
        {u"scurvy in guinea pigs"_qs, {u"guinea-pig"_qs}},
        {u"heat in a chinchilla"_qs, {u"chinchilla"_qs}},
        {u"fits of gerbils"_qs, {u"gerbil"_qs}},
        {u"wobbly hedgehogs"_qs, {u"hedgehog"_qs}},
        {u"a sugar glider's stress"_qs, {u"sugar-glider"_qs}},
        {u"Snakes in a cold tank"_qs, {u"ball-python"_qs, u"corn-snake"_qs, u"kingsnake"_qs}},
        {u"swollen eyes in turtles"_qs, {u"red-eared-slider"_qs}},
        {u"tortoise herpes"_qs, {u"russian-tortoise"_qs, u"sulcata-tortoise"_qs}},
        {u"chytrid in FROGS"_qs, {u"pacman-frog"_qs, u"whites-tree-frog"_qs}},
        {u"a molt, in tarantulas"_qs, {u"tarantula"_qs}},
        {u"hermit crab (shell)"_qs, {u"hermit-crab"_qs}},
        {u"air sac disease in birds"_qs, animalsOf(SpeciesGroup::Bird)},
        {u"bone disease in reptiles"_qs, animalsOf(SpeciesGroup::Reptile)},
        {u"amphibian bacteria"_qs, animalsOf(SpeciesGroup::Amphibian)},
        {u"mammals' heat stroke"_qs, animalsOf(SpeciesGroup::Mammal)},
        {u"common in ferrets and rabbits"_qs, {u"ferret"_qs, u"rabbit"_qs}},
        {u"in birds and hedgehogs"_qs, {u"hedgehog"_qs, u"budgie"_qs}},
    };
    for (const auto& [cause, expected] : cases)
        EXPECT_EQ(animalsWith(cause), expected) << cause.toStdString();
}

TEST(CauseFilter, LetsGeneralCausesPassForAll) {
    QStringList all;
    for (const Species& animal : animals)
        all.append(animal.id);
    for (const QString& cause : {u"stress"_qs, u""_qs, u"too much birdseed"_qs, u"the snakeskin pattern"_qs,
                                 u"wet tail in hamsters"_qs, u"bullfrog"_qs, u"guinea  pigs"_qs, u"crabs"_qs,
                                 u"axolotls and budgies"_qs})
        EXPECT_EQ(animalsWith(cause), all) << cause.toStdString();
}

TEST(VetLinks, LeadToTheFittingDirectoriesFirst) {
    using SymptomChecker::VetLink;
    const QUrl arav(u"https://arav.org/find-a-vet/"_qs);
    const QUrl aemv(u"https://www.aemv.org/"_qs);
    const QUrl aav(u"https://www.aav.org/"_qs);
    const QList<VetLink> herps = {{u"ARAV — Find a reptile & amphibian vet"_qs, arav},
                                  {u"AEMV — Find an exotic vet"_qs, aemv}};
    EXPECT_TRUE(
        SymptomChecker::vetLinks(SpeciesGroup::Mammal) ==
        QList<VetLink>({{u"AEMV — Find an exotic mammal vet"_qs, aemv}, {u"ARAV — Find a vet"_qs, arav}}));
    EXPECT_TRUE(SymptomChecker::vetLinks(SpeciesGroup::Reptile) == herps);
    EXPECT_TRUE(SymptomChecker::vetLinks(SpeciesGroup::Amphibian) == herps);
    EXPECT_TRUE(SymptomChecker::vetLinks(SpeciesGroup::Bird) ==
                QList<VetLink>({{u"AAV — Association of Avian Veterinarians"_qs, aav},
                                {u"AEMV — Find an exotic vet"_qs, aemv}}));
    EXPECT_TRUE(SymptomChecker::vetLinks(SpeciesGroup::Invertebrate) ==
                QList<VetLink>({{u"AEMV — Find an exotic vet"_qs, aemv}, {u"ARAV — Find a vet"_qs, arav}}));
}

} // namespace
} // namespace ormiva
