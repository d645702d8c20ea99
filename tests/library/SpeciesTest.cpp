#include "LibraryPrinters.h"

namespace ormiva {
namespace {

Species animal() {
    Species animal;
    animal.name = u"Rabbit"_qs;
    animal.scientific = u"Oryctolagus cuniculus"_qs;
    animal.summary = u"A social animal."_qs;
    animal.fields.insert(u"diet"_qs, {u"Mostly hay."_qs, {u"b"_qs, u"a"_qs, u"b"_qs}});
    animal.fields.insert(u"lifespan"_qs, {u"Ten years."_qs, {u"c"_qs, u"a"_qs}});
    animal.fields.insert(u"legal"_qs, {u"Legal.\nMostly."_qs, {u"d"_qs}});
    animal.fields.insert(u"notes"_qs, {u"Never shown."_qs, {u"hidden"_qs}});
    return animal;
}

TEST(Species, GivesTheTextOfAField) {
    EXPECT_EQ(animal().field(CareField::Diet), (CitedText{u"Mostly hay."_qs, {u"b"_qs, u"a"_qs, u"b"_qs}}));
}

TEST(Species, GivesAnEmptyTextForAFieldThatItLacks) {
    EXPECT_EQ(animal().field(CareField::Treats), CitedText());
    EXPECT_EQ(Species().field(CareField::Legal), CitedText());
}

TEST(Species, ListsItsSourcesOnceInTheOrderOfTheFields) {
    EXPECT_EQ(animal().sourceKeys(), QStringList({u"c"_qs, u"a"_qs, u"b"_qs, u"d"_qs}));
    EXPECT_EQ(Species().sourceKeys(), QStringList());
}

TEST(Species, JoinsAllItsTextsALineEach) {
    // lifespan; seven absent fields; diet; twelve absent fields; legal.
    const QString fields =
        u"Ten years."_qs + QString(8, u'\n') + u"Mostly hay."_qs + QString(13, u'\n') + u"Legal.\nMostly."_qs;
    EXPECT_EQ(animal().allText(), u"Rabbit\nOryctolagus cuniculus\nA social animal.\n\n"_qs + fields);
    Species limited = animal();
    limited.limited = u"Little is known."_qs;
    EXPECT_EQ(limited.allText(),
              u"Rabbit\nOryctolagus cuniculus\nA social animal.\nLittle is known.\n"_qs + fields);
    EXPECT_EQ(Species().allText(), QString(25, u'\n'));
}

TEST(Species, IsEqualFieldByField) {
    EXPECT_EQ(animal(), animal());
    QList<Species> others(9, animal());
    others[0].id = u"x"_qs;
    others[1].name = u"x"_qs;
    others[2].scientific = u"x"_qs;
    others[3].group = SpeciesGroup::Bird;
    others[4].art = u"x"_qs;
    others[5].palette = QStringList{u"x"_qs};
    others[6].summary = u"x"_qs;
    others[7].limited = u""_qs;
    others[8].fields.remove(u"notes"_qs);
    for (const Species& other : others)
        EXPECT_FALSE(other == animal());
}

TEST(Species, TellsTheTitleOfItsGroup) {
    Species species;
    species.group = SpeciesGroup::Invertebrate;
    EXPECT_EQ(species.groupTitle(), u"Invertebrates"_qs);
}

} // namespace
} // namespace ormiva
