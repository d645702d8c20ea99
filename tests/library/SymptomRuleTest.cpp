#include "LibraryPrinters.h"

namespace ormiva {
namespace {

Species animal(const QString& id, SpeciesGroup group) {
    Species animal;
    animal.id = id;
    animal.group = group;
    return animal;
}

const Species rabbit = animal(QStringLiteral("rabbit"), SpeciesGroup::Mammal);
const Species gecko = animal(QStringLiteral("leopard-gecko"), SpeciesGroup::Reptile);
const Species python = animal(QStringLiteral("ball-python"), SpeciesGroup::Reptile);

SymptomRule rule(const QStringList& when) {
    SymptomRule rule;
    rule.when = when;
    return rule;
}

TEST(SymptomRule, NeedsAllOfItsSigns) {
    const SymptomRule both = rule({u"a"_qs, u"b"_qs});
    EXPECT_FALSE(both.applies(rabbit, {}));
    EXPECT_FALSE(both.applies(rabbit, {u"a"_qs}));
    EXPECT_FALSE(both.applies(rabbit, {u"b"_qs, u"c"_qs}));
    EXPECT_TRUE(both.applies(rabbit, {u"a"_qs, u"b"_qs}));
    EXPECT_TRUE(both.applies(rabbit, {u"a"_qs, u"b"_qs, u"c"_qs}));
    EXPECT_FALSE(both.applies(rabbit, {u"A"_qs, u"b"_qs}));
}

TEST(SymptomRule, WithoutSignsAppliesAlways) {
    EXPECT_TRUE(rule({}).applies(rabbit, {}));
    EXPECT_TRUE(rule({}).applies(gecko, {u"a"_qs}));
}

TEST(SymptomRule, AppliesToTheSpeciesThatItLists) {
    SymptomRule listed = rule({u"a"_qs});
    listed.species = QStringList{u"rabbit"_qs, u"ball-python"_qs};
    EXPECT_TRUE(listed.applies(rabbit, {u"a"_qs}));
    EXPECT_TRUE(listed.applies(python, {u"a"_qs}));
    EXPECT_FALSE(listed.applies(gecko, {u"a"_qs}));
    EXPECT_FALSE(listed.applies(animal(u"Rabbit"_qs, SpeciesGroup::Mammal), {u"a"_qs}));
    EXPECT_FALSE(listed.applies(rabbit, {u"b"_qs}));
}

TEST(SymptomRule, AppliesToTheGroupsThatItLists) {
    SymptomRule listed = rule({u"a"_qs});
    listed.groups = QList<SpeciesGroup>{SpeciesGroup::Reptile};
    EXPECT_TRUE(listed.applies(gecko, {u"a"_qs}));
    EXPECT_TRUE(listed.applies(python, {u"a"_qs}));
    EXPECT_FALSE(listed.applies(rabbit, {u"a"_qs}));
}

TEST(SymptomRule, MustPassBothLists) {
    SymptomRule both = rule({u"a"_qs});
    both.species = QStringList{u"rabbit"_qs};
    both.groups = QList<SpeciesGroup>{SpeciesGroup::Reptile};
    for (const Species& any : {rabbit, gecko, python})
        EXPECT_FALSE(both.applies(any, {u"a"_qs}));
    both.groups = QList<SpeciesGroup>{SpeciesGroup::Reptile, SpeciesGroup::Mammal};
    EXPECT_TRUE(both.applies(rabbit, {u"a"_qs}));
    EXPECT_FALSE(both.applies(gecko, {u"a"_qs}));
}

TEST(SymptomRule, WithAnEmptyListAppliesToNothing) {
    SymptomRule noSpecies = rule({u"a"_qs});
    noSpecies.species = QStringList();
    SymptomRule noGroup = rule({u"a"_qs});
    noGroup.groups = QList<SpeciesGroup>();
    for (const Species& any : {rabbit, gecko, python}) {
        EXPECT_FALSE(noSpecies.applies(any, {u"a"_qs}));
        EXPECT_FALSE(noGroup.applies(any, {u"a"_qs}));
        EXPECT_TRUE(rule({u"a"_qs}).applies(any, {u"a"_qs}));
    }
}

TEST(SymptomDef, IsARedFlagOnlyWhenItSaysSo) {
    SymptomDef sign;
    EXPECT_FALSE(sign.isRedFlag());
    sign.redFlag = false;
    EXPECT_FALSE(sign.isRedFlag());
    sign.redFlag = true;
    EXPECT_TRUE(sign.isRedFlag());
}

} // namespace
} // namespace ormiva
