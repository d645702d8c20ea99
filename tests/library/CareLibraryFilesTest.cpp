#include "CareLibrary.h"

#include "LibraryPrinters.h"

#include <QDir>
#include <QFile>

#include <algorithm>

namespace ormiva {
namespace {

namespace Json = testing::Json;
using testing::ContentFolder;
using testing::ids;

class ContentOnDisk : public ::testing::Test {
protected:
    void addSpecies(const QString& fileName, const QString& id) const {
        m_content.species(fileName, Json::species(id, id));
    }
    static QStringList names(const QStringList& problems) {
        QStringList names;
        for (const QString& line : problems)
            names.append(line.section(u": "_qs, 0, 0));
        return names;
    }

    ContentFolder m_content;
};

TEST_F(ContentOnDisk, ThatIsEmptyHasTwoProblems) {
    const CareLibrary library(m_content.path());
    EXPECT_EQ(library.species(), QList<Species>());
    EXPECT_TRUE(library.sources().isEmpty());
    EXPECT_EQ(library.sourcesChecked(), QString());
    EXPECT_EQ(library.symptoms(), QList<SymptomDef>());
    EXPECT_EQ(library.rules(), QList<SymptomRule>());
    EXPECT_EQ(names(library.loadProblems()), QStringList({u"sources.json"_qs, u"symptoms.json"_qs}));
    EXPECT_TRUE(library.usesFTS5());
    EXPECT_EQ(library.search(u"hay"_qs), QList<Species>());
}

TEST_F(ContentOnDisk, ThatIsMissingHasTheSameTwoProblems) {
    const CareLibrary library(m_content.path() + u"/nowhere"_qs);
    EXPECT_EQ(names(library.loadProblems()), QStringList({u"sources.json"_qs, u"symptoms.json"_qs}));
    for (const QString& line : library.loadProblems())
        EXPECT_GT(line.size(), line.indexOf(u": "_qs) + 2) << "no reason: " << line.toStdString();
}

TEST_F(ContentOnDisk, WithoutASpeciesFolderHasNoProblem) {
    m_content.addValidLists();
    const CareLibrary library(m_content.path());
    EXPECT_EQ(library.loadProblems(), QStringList());
    EXPECT_EQ(library.species(), QList<Species>());
    EXPECT_EQ(library.sources().size(), 1);
}

TEST_F(ContentOnDisk, WithAFileForASpeciesFolderHasNoProblem) {
    m_content.addValidLists();
    QFile file(m_content.path() + u"/species"_qs);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const CareLibrary library(m_content.path());
    EXPECT_EQ(library.loadProblems(), QStringList());
    EXPECT_EQ(library.species(), QList<Species>());
}

TEST_F(ContentOnDisk, LosesOnlyTheSpeciesOfABrokenFile) {
    m_content.addValidLists();
    addSpecies(u"a.json"_qs, u"a"_qs);
    m_content.species(u"b.json"_qs, Json::with(Json::species(u"b"_qs, u"b"_qs), u"group"_qs, u"fish"_qs));
    addSpecies(u"c.json"_qs, u"c"_qs);
    const CareLibrary library(m_content.path());
    EXPECT_EQ(ids(library.species()), QStringList({u"a"_qs, u"c"_qs}));
    EXPECT_EQ(library.loadProblems(),
              QStringList({u"b.json: group: expected one of mammal, reptile, amphibian, bird, "
                           "invertebrate, found “fish”"_qs}));
}

TEST_F(ContentOnDisk, TakesFilesWithTheExactExtensionOnly) {
    m_content.addValidLists();
    addSpecies(u"a.json"_qs, u"plain"_qs);
    addSpecies(u".hidden.json"_qs, u"hidden"_qs);
    addSpecies(u"two words.b.json"_qs, u"words"_qs);
    const QStringList others = {u"x.JSON"_qs,  u"x.Json"_qs,     u"notes.txt"_qs, u".json"_qs, u"json"_qs,
                                u"b.json~"_qs, u"c.json.bak"_qs, u"d.jsonx"_qs,   u"ejson"_qs, u"f.json "_qs};
    for (const QString& name : others)
        m_content.species(name, QByteArray("broken"));
    const CareLibrary library(m_content.path());
    EXPECT_EQ(ids(library.species()), QStringList({u"hidden"_qs, u"plain"_qs, u"words"_qs}));
    EXPECT_EQ(library.loadProblems(), QStringList());
}

TEST_F(ContentOnDisk, ReportsEntriesThatCannotBeRead) {
    m_content.addValidLists();
    addSpecies(u"a.json"_qs, u"a"_qs);
    ASSERT_TRUE(QDir().mkpath(m_content.path() + u"/species/y.json"_qs));
    ASSERT_TRUE(QFile::link(u"nowhere"_qs, m_content.path() + u"/species/z.json"_qs));
    const CareLibrary library(m_content.path());
    EXPECT_EQ(ids(library.species()), QStringList({u"a"_qs}));
    EXPECT_EQ(names(library.loadProblems()), QStringList({u"y.json"_qs, u"z.json"_qs}));
    for (const QString& line : library.loadProblems())
        EXPECT_GT(line.size(), line.indexOf(u": "_qs) + 2) << "no reason: " << line.toStdString();
}

TEST_F(ContentOnDisk, FollowsALinkToASpecies) {
    m_content.addValidLists();
    addSpecies(u"a.txt"_qs, u"a"_qs);
    ASSERT_TRUE(
        QFile::link(m_content.path() + u"/species/a.txt"_qs, m_content.path() + u"/species/z.json"_qs));
    EXPECT_EQ(ids(CareLibrary(m_content.path()).species()), QStringList({u"a"_qs}));
}

TEST_F(ContentOnDisk, ListsProblemsByCodePointThenTheLists) {
    // In UTF-16 the last of these would come before the one ahead of it.
    const QStringList ordered = {u".x.json"_qs, u"A.json"_qs, u"Z.json"_qs,      u"a.json"_qs,
                                 u"b.json"_qs,  u"ä.json"_qs, u"\uff21.json"_qs, u"😀.json"_qs};
    QStringList shuffled = ordered;
    std::reverse(shuffled.begin(), shuffled.end());
    for (const QString& name : shuffled)
        m_content.species(name, QByteArray("[]"));
    m_content.sources("[]");
    m_content.symptoms("{}");
    QStringList expected;
    for (const QString& name : ordered)
        expected.append(name + u": the file: expected an object, found a list"_qs);
    expected.append(u"sources.json: the file: expected an object, found a list"_qs);
    expected.append(u"symptoms.json: symptoms: expected a list, found nothing"_qs);
    EXPECT_EQ(CareLibrary(m_content.path()).loadProblems(), expected);
}

TEST_F(ContentOnDisk, KeepsEachFilesProblemToItself) {
    m_content.addValidLists();
    addSpecies(u"a.json"_qs, u"a"_qs);
    m_content.sources(R"({"checked":"today"})");
    const CareLibrary library(m_content.path());
    EXPECT_EQ(library.loadProblems(),
              QStringList({u"sources.json: sources: expected a list, found nothing"_qs}));
    EXPECT_EQ(ids(library.species()), QStringList({u"a"_qs}));
    EXPECT_EQ(library.sourcesChecked(), QString());
    EXPECT_EQ(library.symptoms().size(), 1);
    EXPECT_EQ(library.rules().size(), 1);
}

TEST_F(ContentOnDisk, LosesAllSymptomsToOneUnknownWord) {
    m_content.addValidLists();
    m_content.symptoms(Json::bytes(Json::symptomFile(
        {Json::symptom(u"a"_qs, {u"mammal"_qs})},
        {Json::rule(u"r"_qs, {u"a"_qs}, u"soon"_qs), Json::rule(u"q"_qs, {u"a"_qs}, u"urgent"_qs)})));
    const CareLibrary library(m_content.path());
    EXPECT_EQ(library.loadProblems(),
              QStringList({u"symptoms.json: rules[1].urgency: expected one of monitor, soon, "
                           "emergency, found “urgent”"_qs}));
    EXPECT_EQ(library.symptoms(), QList<SymptomDef>());
    EXPECT_EQ(library.rules(), QList<SymptomRule>());
    EXPECT_EQ(library.sources().size(), 1);
}

TEST_F(ContentOnDisk, IsTheSameWhenLoadedAgain) {
    m_content.addValidLists();
    addSpecies(u"a.json"_qs, u"a"_qs);
    m_content.species(u"b.json"_qs, QByteArray("{}"));
    CareLibrary library(m_content.path());
    const auto species = library.species();
    const auto sources = library.sources();
    const auto symptoms = library.symptoms();
    const auto rules = library.rules();
    const auto problems = library.loadProblems();
    ASSERT_EQ(problems.size(), 1);
    library.reload();
    EXPECT_EQ(library.species(), species);
    EXPECT_TRUE(library.sources() == sources);
    EXPECT_EQ(library.symptoms(), symptoms);
    EXPECT_EQ(library.rules(), rules);
    EXPECT_EQ(library.loadProblems(), problems);
    EXPECT_EQ(ids(library.search(u"exemplum"_qs)), QStringList({u"a"_qs}));
}

TEST_F(ContentOnDisk, TakesNewContentWhenLoadedAgain) {
    m_content.addValidLists();
    addSpecies(u"a.json"_qs, u"a"_qs);
    CareLibrary library(m_content.path());
    m_content.remove(u"species/a.json"_qs);
    addSpecies(u"b.json"_qs, u"b"_qs);
    m_content.sources(Json::bytes(Json::sourceFile({Json::source(u"new"_qs)})));
    library.reload();
    EXPECT_EQ(ids(library.species()), QStringList({u"b"_qs}));
    EXPECT_EQ(library.sources().keys(), QStringList({u"new"_qs}));
    EXPECT_EQ(ids(library.search(u"exemplum"_qs)), QStringList({u"b"_qs}));
    EXPECT_EQ(library.loadProblems(), QStringList());
}

TEST_F(ContentOnDisk, KeepsTheOldListsWhereTheFileCannotBeReadAnyMore) {
    m_content.addValidLists();
    addSpecies(u"a.json"_qs, u"a"_qs);
    CareLibrary library(m_content.path());
    const auto sources = library.sources();
    const auto symptoms = library.symptoms();
    const auto rules = library.rules();
    ASSERT_EQ(sources.size(), 1);
    ASSERT_EQ(symptoms.size(), 1);
    ASSERT_EQ(rules.size(), 1);
    m_content.species(u"a.json"_qs, QByteArray("[]"));
    m_content.sources("[]");
    m_content.remove(u"symptoms.json"_qs);
    library.reload();
    EXPECT_EQ(library.species(), QList<Species>());
    EXPECT_EQ(library.search(u"exemplum"_qs), QList<Species>());
    EXPECT_TRUE(library.sources() == sources);
    EXPECT_EQ(library.sourcesChecked(), u"2026-02-03"_qs);
    EXPECT_EQ(library.symptoms(), symptoms);
    EXPECT_EQ(library.rules(), rules);
    EXPECT_EQ(names(library.loadProblems()),
              QStringList({u"a.json"_qs, u"sources.json"_qs, u"symptoms.json"_qs}));
}

using ContentOnDiskDeathTest = ContentOnDisk;

TEST_F(ContentOnDiskDeathTest, WithTwoSourcesOfOneKeyStopsTheProcess) {
    ::testing::FLAGS_gtest_death_test_style = "threadsafe";
    m_content.addValidLists();
    m_content.sources(Json::bytes(
        Json::sourceFile({Json::source(u"twice"_qs), Json::source(u"once"_qs), Json::source(u"twice"_qs)})));
    EXPECT_DEATH(CareLibrary{m_content.path()}, "Duplicate values for key: 'twice'");
}

} // namespace
} // namespace ormiva
