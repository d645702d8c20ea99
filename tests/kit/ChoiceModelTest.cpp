#include "PetChoices.h"
#include "SpeciesChoices.h"
#include "TextChoices.h"

#include "CareLibrary.h"
#include "OMStore.h"
#include "Printers.h"
#include "TemporaryFolder.h"

#include <QCollator>
#include <QFontMetricsF>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <algorithm>

namespace ormiva::testing {

namespace {

QStringList titles(const ChoiceModel& model) {
    QStringList titles;
    for (int row = 0; row < model.rowCount(); ++row)
        titles.append(model.data(model.index(row, 0), ChoiceModel::TitleRole).toString());
    return titles;
}

/// Animals with the ids "0", "1", ….
class Animals : public TextChoices {
public:
    explicit Animals(const QStringList& names) {
        QStringList numbers;
        for (qsizetype i = 0; i < names.size(); ++i)
            numbers.append(QString::number(i));
        setIds(numbers);
        setTitles(names);
    }
};

/// A store for the run of a test, with the species of the shipped library.
class SharedStore {
public:
    SharedStore() { OMStore::setShared(std::make_unique<OMStore>(m_folder.file(u"Pets.sqlite"_qs))); }
    ~SharedStore() { OMStore::setShared(nullptr); }
    SharedStore(const SharedStore&) = delete;
    SharedStore& operator=(const SharedStore&) = delete;

    qint64 add(const QString& name) {
        Pet pet;
        pet.name = name;
        pet.speciesID = u"leopard-gecko"_qs;
        OMStore::shared()->save(pet);
        OMStore::shared()->changed();
        return pet.id;
    }

private:
    TemporaryFolder m_folder;
};

/// The choices that come from the shipped library.
class LibraryChoicesTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() { qputenv("OM_DATA_DIR", ORMIVA_ROOT "/data"); }
};

} // namespace

TEST(TextChoices, ChoosesByRowAndById) {
    Animals model({u"Ant"_qs, u"Bee"_qs, u"Cat"_qs});
    EXPECT_EQ(titles(model), QStringList({u"Ant"_qs, u"Bee"_qs, u"Cat"_qs}));
    EXPECT_EQ(model.current(), -1);
    EXPECT_EQ(model.title(), u"—"_qs);
    QSignalSpy changes(&model, &ChoiceModel::valueChanged);
    model.choose(2);
    model.choose(2);
    model.choose(3);
    model.choose(-1);
    EXPECT_EQ(model.chosen(), u"2"_qs);
    EXPECT_EQ(model.title(), u"Cat"_qs);
    EXPECT_EQ(changes.size(), 1);
    model.setChosen(u"0"_qs);
    EXPECT_EQ(model.current(), 0);
}

TEST(TextChoices, KeepsWhatIsChosenWhenTheEntriesChange) {
    Animals model({u"Ant"_qs, u"Bee"_qs});
    model.setChosen(u"1"_qs);
    model.setAllowNone(true);
    model.setNoneTitle(u"Any"_qs);
    EXPECT_EQ(titles(model), QStringList({u"Any"_qs, u"Ant"_qs, u"Bee"_qs}));
    EXPECT_EQ(model.current(), 2);
    EXPECT_EQ(model.title(), u"Bee"_qs);
    model.choose(0);
    EXPECT_EQ(model.chosen(), QString());
}

TEST(ChoiceModel, FindsTheEntryThatBeginsWithWhatIsTyped) {
    const Animals model({u"Ant"_qs, u"Bee"_qs, u"bear"_qs, u"Cat"_qs, u"Émeu"_qs});
    EXPECT_EQ(model.find(u"c"_qs, -1), 3);
    EXPECT_EQ(model.find(u"B"_qs, -1), 1);
    EXPECT_EQ(model.find(u"b"_qs, 1), 2);  // One letter leads on,
    EXPECT_EQ(model.find(u"b"_qs, 2), 1);  // and around,
    EXPECT_EQ(model.find(u"bb"_qs, 1), 2); // also when it is repeated.
    EXPECT_EQ(model.find(u"be"_qs, 1), 1); // More letters stay while they fit.
    EXPECT_EQ(model.find(u"bea"_qs, 1), 2);
    EXPECT_EQ(model.find(u"é"_qs, 0), 4);
    EXPECT_EQ(model.find(u"bx"_qs, 0), -1);
    EXPECT_EQ(model.find(u"x"_qs, 0), -1);
    EXPECT_EQ(model.find(QString(), 0), -1);
    EXPECT_EQ(Animals({u"Aa"_qs, u"Ab"_qs}).find(u"aa"_qs, 1), 0); // An entry that begins so goes first.
}

TEST(ChoiceModel, IsAsWideAsItsWidestTitle) {
    const QFont font(u"Inter"_qs, 13);
    const Animals model({u"Ant"_qs, u"A wide one indeed"_qs, u"Cat"_qs});
    EXPECT_EQ(model.widest(font), QFontMetricsF(font).horizontalAdvance(u"A wide one indeed"_qs));
}

TEST_F(LibraryChoicesTest, ListsTheSpeciesByNameAcrossTheirGroups) {
    SpeciesChoices model(nullptr);
    QStringList expected;
    for (const Species& species : CareLibrary::shared().species())
        expected.append(species.name);
    ASSERT_GT(expected.size(), 10);
    const QStringList byGroup = expected;
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::sort(expected.begin(), expected.end(), collator);
    EXPECT_NE(expected, byGroup);
    EXPECT_EQ(titles(model), expected);
}

TEST_F(LibraryChoicesTest, ShowsTheDrawingOfTheChosenSpecies) {
    SpeciesChoices model(nullptr);
    model.setSpecies(u"leopard-gecko"_qs);
    const Species gecko = CareLibrary::shared().species(u"leopard-gecko"_qs).value();
    EXPECT_EQ(model.title(), gecko.name);
    EXPECT_EQ(model.art(), gecko.art);
    EXPECT_EQ(model.palette(), gecko.palette);
}

TEST_F(LibraryChoicesTest, ShowsAnUnknownSpeciesAsNoneAndKeepsIt) {
    SpeciesChoices model(nullptr);
    model.setNoneTitle(u"No species"_qs);
    model.setSpecies(u"no-such"_qs);
    EXPECT_EQ(model.current(), -1);
    EXPECT_EQ(model.title(), u"No species"_qs);
    EXPECT_EQ(model.art(), QString());
    model.setAllowNone(true);
    EXPECT_EQ(model.current(), 0);
    EXPECT_EQ(model.species(), u"no-such"_qs);
}

TEST(PetChoices, HasOnlyItsNoneEntryWithoutPets) {
    PetChoices withoutStore(nullptr);
    EXPECT_EQ(titles(withoutStore), QStringList{u"—"_qs});
    const SharedStore store;
    PetChoices model(nullptr);
    model.setNoneTitle(u"Nobody"_qs);
    EXPECT_EQ(titles(model), QStringList{u"Nobody"_qs});
    EXPECT_EQ(model.current(), 0);
}

TEST_F(LibraryChoicesTest, ListsThePetsAndFollowsTheRecords) {
    SharedStore store;
    PetChoices model(nullptr);
    const QString species = CareLibrary::shared().species(u"leopard-gecko"_qs).value().name;
    const qint64 ziggy = store.add(u"Ziggy"_qs);
    const QString ziggysTitle = u"Ziggy (%1)"_qs.arg(species);
    EXPECT_EQ(titles(model), QStringList{ziggysTitle});
    model.setPetID(ziggy);
    store.add(u"a %2 %1 name"_qs);
    EXPECT_EQ(titles(model), QStringList({u"a %2 %1 name ("_qs + species + u")"_qs, ziggysTitle}));
    EXPECT_EQ(model.current(), 1);
    EXPECT_EQ(model.petID(), ziggy);
    OMStore::shared()->remove<Pet>(ziggy);
    EXPECT_EQ(model.title(), u"—"_qs);
    EXPECT_EQ(model.petID(), ziggy);
}

TEST_F(LibraryChoicesTest, WritesTheIdOfASpeciesThatTheLibraryDoesNotHave) {
    SharedStore store;
    const qint64 id = store.add(u"Ziggy"_qs);
    OMStore::shared()->db().run(u"UPDATE pet SET species_id = 'a-phoenix' WHERE id = ?"_qs, {id});
    EXPECT_EQ(titles(PetChoices(nullptr)), QStringList{u"Ziggy (a-phoenix)"_qs});
}

} // namespace ormiva::testing
