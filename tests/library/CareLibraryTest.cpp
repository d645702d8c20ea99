#include "CareLibrary.h"

#include "LibraryPrinters.h"

namespace ormiva {
namespace {

namespace Json = testing::Json;
using testing::ContentFolder;
using testing::ids;

class LoadedLibrary : public ::testing::Test {
protected:
    /// Species in files that are read in the order of this list, each with its name as its id.
    CareLibrary libraryOf(const QList<std::pair<QString, QString>>& namesAndGroups) const {
        m_content.addValidLists();
        int file = 100;
        for (const auto& [name, group] : namesAndGroups)
            m_content.species(u"%1.json"_qs.arg(++file), Json::species(name, name, group));
        return CareLibrary(m_content.path());
    }

    ContentFolder m_content;
};

TEST_F(LoadedLibrary, SortsNamesWithoutRegardToCase) {
    EXPECT_EQ(ids(libraryOf({{u"Bearded Dragon"_qs, u"reptile"_qs},
                             {u"ball python"_qs, u"reptile"_qs},
                             {u"axolotl"_qs, u"reptile"_qs}})
                      .species()),
              QStringList({u"axolotl"_qs, u"ball python"_qs, u"Bearded Dragon"_qs}));
}

TEST_F(LoadedLibrary, SortsByGroupBeforeName) {
    EXPECT_EQ(ids(libraryOf({{u"Anole"_qs, u"reptile"_qs},
                             {u"Ant"_qs, u"invertebrate"_qs},
                             {u"Auk"_qs, u"bird"_qs},
                             {u"Zebra"_qs, u"mammal"_qs},
                             {u"Axolotl"_qs, u"amphibian"_qs}})
                      .species()),
              QStringList({u"Zebra"_qs, u"Anole"_qs, u"Axolotl"_qs, u"Auk"_qs, u"Ant"_qs}));
}

TEST_F(LoadedLibrary, SortsAsTheUsersLocaleDoes) {
    const QStringList found = ids(
        libraryOf(
            {{u"Boa"_qs, u"reptile"_qs}, {u"Äskulapnatter"_qs, u"reptile"_qs}, {u"Anole"_qs, u"reptile"_qs}})
            .species());
    const bool german = qgetenv("LC_ALL").startsWith("de_DE");
    const QStringList expected = german ? QStringList{u"Anole"_qs, u"Äskulapnatter"_qs, u"Boa"_qs}
                                        : QStringList{u"Anole"_qs, u"Boa"_qs, u"Äskulapnatter"_qs};
    EXPECT_EQ(found, expected);
}

TEST_F(LoadedLibrary, KeepsTheOrderOfTheFilesForEqualNames) {
    m_content.addValidLists();
    for (int i = 0; i < 20; ++i)
        m_content.species(u"%1.json"_qs.arg(QChar(u'a' + 19 - i)),
                          Json::species(QString::number(i), i % 2 ? u"Frog"_qs : u"frog"_qs));
    QStringList expected;
    for (int i = 19; i >= 0; --i)
        expected.append(QString::number(i));
    EXPECT_EQ(ids(CareLibrary(m_content.path()).species()), expected);
}

TEST_F(LoadedLibrary, FindsASpeciesByItsExactId) {
    m_content.addValidLists();
    m_content.species(u"r.json"_qs, Json::species(u"rabbit"_qs, u"Rabbit"_qs));
    const CareLibrary library(m_content.path());
    ASSERT_TRUE(library.species(u"rabbit"_qs).has_value());
    EXPECT_EQ(*library.species(u"rabbit"_qs), library.species().first());
    EXPECT_EQ(library.species(u"Rabbit"_qs), std::nullopt);
    EXPECT_EQ(library.species(u"rabbi"_qs), std::nullopt);
    EXPECT_EQ(library.species(QString()), std::nullopt);
}

TEST_F(LoadedLibrary, KeepsTwoSpeciesOfOneIdAndFindsTheFirst) {
    m_content.addValidLists();
    m_content.species(u"a.json"_qs, Json::species(u"rabbit"_qs, u"Zwerg"_qs));
    m_content.species(u"b.json"_qs, Json::species(u"rabbit"_qs, u"Angora"_qs));
    const CareLibrary library(m_content.path());
    EXPECT_EQ(library.loadProblems(), QStringList());
    EXPECT_EQ(ids(library.species()), QStringList({u"rabbit"_qs, u"rabbit"_qs}));
    EXPECT_EQ(library.species(u"rabbit"_qs)->name, u"Angora"_qs);
}

TEST_F(LoadedLibrary, FindsASourceByItsKey) {
    m_content.addValidLists();
    m_content.sources(Json::bytes(Json::sourceFile(
        {Json::source(u"b"_qs), Json::with(Json::source(u"a"_qs), u"title"_qs, u"Another page"_qs)})));
    const CareLibrary library(m_content.path());
    EXPECT_EQ(library.sourcesChecked(), u"2026-02-03"_qs);
    EXPECT_EQ(library.sources().size(), 2);
    ASSERT_TRUE(library.source(u"a"_qs).has_value());
    EXPECT_EQ(library.source(u"a"_qs)->title, u"Another page"_qs);
    EXPECT_EQ(library.source(u"a"_qs)->key, u"a"_qs);
    EXPECT_EQ(library.source(u"b"_qs)->title, u"A page"_qs);
    EXPECT_EQ(library.source(u"A"_qs), std::nullopt);
    EXPECT_EQ(library.source(QString()), std::nullopt);
}

TEST_F(LoadedLibrary, KeepsSignsAndRulesInFileOrder) {
    m_content.addValidLists();
    m_content.symptoms(Json::bytes(Json::symptomFile(
        {Json::symptom(u"z"_qs, {}), Json::symptom(u"a"_qs, {}), Json::symptom(u"m"_qs, {})},
        {Json::rule(u"9"_qs, {}, u"soon"_qs), Json::rule(u"1"_qs, {}, u"monitor"_qs)})));
    const CareLibrary library(m_content.path());
    QStringList found;
    for (const SymptomDef& sign : library.symptoms())
        found.append(sign.id);
    for (const SymptomRule& rule : library.rules())
        found.append(rule.id);
    EXPECT_EQ(found, QStringList({u"z"_qs, u"a"_qs, u"m"_qs, u"9"_qs, u"1"_qs}));
}

TEST_F(LoadedLibrary, OffersTheSignsOfASpeciesGroup) {
    m_content.addValidLists();
    m_content.symptoms(Json::bytes(
        Json::symptomFile({Json::symptom(u"shed"_qs, {u"reptile"_qs, u"amphibian"_qs}),
                           Json::symptom(u"nowhere"_qs, {}), Json::symptom(u"vomit"_qs, {u"mammal"_qs}),
                           Json::symptom(u"collapse"_qs, {u"mammal"_qs, u"reptile"_qs})},
                          {})));
    const CareLibrary library(m_content.path());
    const auto offered = [&](SpeciesGroup group) {
        Species animal;
        animal.group = group;
        QStringList found;
        for (const SymptomDef& sign : library.symptoms(animal))
            found.append(sign.id);
        return found;
    };
    EXPECT_EQ(offered(SpeciesGroup::Mammal), QStringList({u"vomit"_qs, u"collapse"_qs}));
    EXPECT_EQ(offered(SpeciesGroup::Reptile), QStringList({u"shed"_qs, u"collapse"_qs}));
    EXPECT_EQ(offered(SpeciesGroup::Amphibian), QStringList({u"shed"_qs}));
    EXPECT_EQ(offered(SpeciesGroup::Bird), QStringList());
    EXPECT_EQ(offered(SpeciesGroup::Invertebrate), QStringList());
}

TEST(SharedLibrary, IsBuiltOnceFromTheDataFolder) {
    EXPECT_EQ(CareLibrary::dataFolder(), qEnvironmentVariable("OM_DATA_DIR"));
    const CareLibrary& library = CareLibrary::shared();
    EXPECT_EQ(&library, &CareLibrary::shared());
    EXPECT_EQ(library.loadProblems(), QStringList());
    EXPECT_EQ(ids(library.species()), QStringList({u"rabbit"_qs, u"leopard-gecko"_qs, u"axolotl"_qs}));
    EXPECT_TRUE(library.usesFTS5());
}

} // namespace
} // namespace ormiva
