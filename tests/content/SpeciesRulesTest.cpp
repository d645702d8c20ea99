#include "ShippedContent.h"

#include <gtest/gtest.h>

#include <QDate>
#include <QRegularExpression>
#include <QSet>

namespace ormiva {
namespace {

using namespace ormiva::testing;

TEST(SpeciesRules, AllFilesLoad) {
    EXPECT_EQ(shipped().loadProblems(), QStringList());
}

TEST(SpeciesRules, ThereAre30To40Species) {
    EXPECT_GE(shipped().species().size(), 30);
    EXPECT_LE(shipped().species().size(), 40);
}

TEST(SpeciesRules, IdsAreUniqueLowerCaseWordsJoinedByHyphens) {
    static const QRegularExpression form(u"^[a-z]+(-[a-z]+)*$"_qs);
    QSet<QString> ids;
    for (const Species& animal : shipped().species()) {
        EXPECT_FALSE(ids.contains(animal.id)) << animal.id.toStdString();
        EXPECT_TRUE(form.match(animal.id).hasMatch()) << animal.id.toStdString();
        ids.insert(animal.id);
    }
}

TEST(SpeciesRules, TheProgramKnowsTheseSpecies) {
    const QList<std::tuple<QString, SpeciesGroup, QString>> known = {
        {u"ferret"_qs, SpeciesGroup::Mammal, u"ferret"_qs},
        {u"fennec-fox"_qs, SpeciesGroup::Mammal, u"fox"_qs},
        {u"skunk"_qs, SpeciesGroup::Mammal, u"skunk"_qs},
        {u"sugar-glider"_qs, SpeciesGroup::Mammal, u"glider"_qs},
        {u"hedgehog"_qs, SpeciesGroup::Mammal, u"hedgehog"_qs},
        {u"chinchilla"_qs, SpeciesGroup::Mammal, u"chinchilla"_qs},
        {u"degu"_qs, SpeciesGroup::Mammal, u"degu"_qs},
        {u"rabbit"_qs, SpeciesGroup::Mammal, u"rabbit"_qs},
        {u"guinea-pig"_qs, SpeciesGroup::Mammal, u"guineapig"_qs},
        {u"rat"_qs, SpeciesGroup::Mammal, u"rat"_qs},
        {u"hamster"_qs, SpeciesGroup::Mammal, u"hamster"_qs},
        {u"gerbil"_qs, SpeciesGroup::Mammal, u"gerbil"_qs},
        {u"bearded-dragon"_qs, SpeciesGroup::Reptile, u"dragon"_qs},
        {u"leopard-gecko"_qs, SpeciesGroup::Reptile, u"gecko"_qs},
        {u"crested-gecko"_qs, SpeciesGroup::Reptile, u"gecko-crested"_qs},
        {u"blue-tongue-skink"_qs, SpeciesGroup::Reptile, u"skink"_qs},
        {u"uromastyx"_qs, SpeciesGroup::Reptile, u"uromastyx"_qs},
        {u"tegu"_qs, SpeciesGroup::Reptile, u"tegu"_qs},
        {u"green-iguana"_qs, SpeciesGroup::Reptile, u"iguana"_qs},
        {u"ball-python"_qs, SpeciesGroup::Reptile, u"snake-python"_qs},
        {u"corn-snake"_qs, SpeciesGroup::Reptile, u"snake-colubrid"_qs},
        {u"kingsnake"_qs, SpeciesGroup::Reptile, u"snake-banded"_qs},
        {u"veiled-chameleon"_qs, SpeciesGroup::Reptile, u"chameleon-veiled"_qs},
        {u"panther-chameleon"_qs, SpeciesGroup::Reptile, u"chameleon-panther"_qs},
        {u"russian-tortoise"_qs, SpeciesGroup::Reptile, u"tortoise-small"_qs},
        {u"sulcata-tortoise"_qs, SpeciesGroup::Reptile, u"tortoise-large"_qs},
        {u"red-eared-slider"_qs, SpeciesGroup::Reptile, u"turtle"_qs},
        {u"axolotl"_qs, SpeciesGroup::Amphibian, u"axolotl"_qs},
        {u"pacman-frog"_qs, SpeciesGroup::Amphibian, u"frog-pacman"_qs},
        {u"whites-tree-frog"_qs, SpeciesGroup::Amphibian, u"frog-tree"_qs},
        {u"budgie"_qs, SpeciesGroup::Bird, u"budgie"_qs},
        {u"cockatiel"_qs, SpeciesGroup::Bird, u"cockatiel"_qs},
        {u"african-grey"_qs, SpeciesGroup::Bird, u"grey"_qs},
        {u"tarantula"_qs, SpeciesGroup::Invertebrate, u"tarantula"_qs},
        {u"hermit-crab"_qs, SpeciesGroup::Invertebrate, u"crab"_qs},
    };
    for (const auto& [id, group, art] : known) {
        const std::optional<Species> animal = shipped().species(id);
        ASSERT_TRUE(animal) << id.toStdString();
        EXPECT_EQ(animal->group, group) << id.toStdString();
        EXPECT_EQ(animal->art, art) << id.toStdString();
    }
}

TEST(SpeciesRules, EachHasNamesAndASummary) {
    for (const Species& animal : shipped().species()) {
        EXPECT_FALSE(animal.name.trimmed().isEmpty()) << animal.id.toStdString();
        EXPECT_FALSE(animal.scientific.trimmed().isEmpty()) << animal.id.toStdString();
        EXPECT_GE(animal.summary.size(), 30) << animal.id.toStdString();
    }
}

TEST(SpeciesRules, EachHasAll22SectionsAndNoOthers) {
    QStringList sections;
    for (const CareFieldInfo& section : allCareFields())
        sections.append(section.id);
    sections.sort();
    for (const Species& animal : shipped().species())
        EXPECT_EQ(animal.fields.keys(), sections) << animal.id.toStdString();
}

TEST(SpeciesRules, EachSectionHasText) {
    for (const PlacedText& section : sheetTexts())
        EXPECT_GE(section.text.trimmed().size(), 20) << section.place.toStdString();
}

TEST(SpeciesRules, EachSectionCitesASource) {
    for (const Species& animal : shipped().species())
        for (const CareFieldInfo& section : allCareFields())
            EXPECT_FALSE(animal.field(section.field).s.isEmpty())
                << animal.id.toStdString() << ' ' << section.id.toStdString();
}

TEST(SpeciesRules, EachCitesTwoSourcesOrMore) {
    for (const Species& animal : shipped().species())
        EXPECT_GE(animal.sourceKeys().size(), 2) << animal.id.toStdString();
}

TEST(SpeciesRules, EveryCitedSourceIsListed) {
    for (const Species& animal : shipped().species())
        for (const CareFieldInfo& section : allCareFields())
            for (const QString& key : animal.field(section.field).s)
                EXPECT_TRUE(shipped().source(key)) << animal.id.toStdString() << ' '
                                                   << section.id.toStdString() << ": " << key.toStdString();
}

TEST(SpeciesRules, EachTemperatureIsGivenInBothUnits) {
    for (const Species& animal : shipped().species()) {
        const QString text = animal.field(CareField::Temperature).t;
        EXPECT_EQ(text.contains(u"°C"), text.contains(u"°F")) << animal.id.toStdString();
        EXPECT_TRUE(text.contains(u"°C") || saysSilent(text)) << animal.id.toStdString();
    }
}

TEST(SpeciesRules, FewerThan40SectionsAreSilent) {
    QStringList silent;
    for (const PlacedText& section : sheetTexts())
        if (saysSilent(section.text))
            silent.append(section.place);
    EXPECT_LT(silent.size(), 40) << silent.join(u", ").toStdString();
}

TEST(SpeciesRules, EachHasTwoColors) {
    static const QRegularExpression sixDigits(u"^#?[0-9A-Fa-f]{6}$"_qs);
    for (const Species& animal : shipped().species()) {
        EXPECT_EQ(animal.palette.size(), 2) << animal.id.toStdString();
        for (const QString& color : animal.palette)
            EXPECT_TRUE(sixDigits.match(color).hasMatch()) << animal.id.toStdString();
    }
}

TEST(SpeciesRules, OnlyHermitCrabAndSkunkRestOnThinEvidence) {
    QStringList limited;
    for (const Species& animal : shipped().species())
        if (animal.limited)
            limited.append(animal.id);
    limited.sort();
    EXPECT_EQ(limited, QStringList({u"hermit-crab"_qs, u"skunk"_qs}));
}

TEST(SpeciesRules, SectionsAreShortEnoughToReadStanding) {
    for (const PlacedText& section : sheetTexts()) {
        EXPECT_LE(section.text.count(u'\n') + 1, 6) << section.place.toStdString();
        for (const QString& line : section.text.split(u'\n'))
            EXPECT_TRUE(!line.isEmpty() && line == line.trimmed()) << section.place.toStdString();
    }
}

} // namespace
} // namespace ormiva
