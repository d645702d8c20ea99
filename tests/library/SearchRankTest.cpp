#include "CareLibrary.h"
#include "LibraryPrinters.h"

namespace ormiva {
namespace {

namespace Json = testing::Json;
using testing::ids;

/// Sheets of one length, so that nothing but the places of a word decides how they rank.
class SearchRank : public ::testing::Test {
protected:
    void SetUp() override {
        m_content.addValidLists();
        for (int i = 0; i < 20; ++i)
            add(u"other-%1"_qs.arg(i), u"Nobody"_qs, u"Nemo nemo"_qs, u"amphibian"_qs, u"word"_qs, 0);
    }
    /// A sheet whose text says `word` so many times.
    void add(const QString& id, const QString& name, const QString& scientific, const QString& group,
             const QString& word, int times) const {
        const QString text = (word + u' ').repeated(times) + u"filler "_qs.repeated(40 - times);
        QJsonObject json = Json::species(id, name, group);
        json.insert(u"scientific"_qs, scientific);
        json.insert(u"fields"_qs, QJsonObject{{u"diet"_qs, Json::cited(text)}});
        m_content.species(id + u".json"_qs, json);
    }
    QStringList ranked(const QString& query) const {
        return ids(CareLibrary(m_content.path()).search(query));
    }

    testing::ContentFolder m_content;
};

// The name and the scientific name stand in the body as well, where they count once more.

TEST_F(SearchRank, CountsAWordInTheNameTwelveTimes) {
    add(u"in-name"_qs, u"Quoll"_qs, u"Nemo nemo"_qs, u"mammal"_qs, u"quoll"_qs, 0);
    add(u"fourteen"_qs, u"Nobody"_qs, u"Nemo nemo"_qs, u"mammal"_qs, u"quoll"_qs, 14);
    add(u"twelve"_qs, u"Nobody"_qs, u"Nemo nemo"_qs, u"mammal"_qs, u"quoll"_qs, 12);
    EXPECT_EQ(ranked(u"quoll"_qs), QStringList({u"fourteen"_qs, u"in-name"_qs, u"twelve"_qs}));
}

TEST_F(SearchRank, CountsAWordInTheScientificNameSixTimes) {
    add(u"in-name"_qs, u"Nobody"_qs, u"Quoll nemo"_qs, u"mammal"_qs, u"quoll"_qs, 0);
    add(u"eight"_qs, u"Nobody"_qs, u"Nemo nemo"_qs, u"mammal"_qs, u"quoll"_qs, 8);
    add(u"six"_qs, u"Nobody"_qs, u"Nemo nemo"_qs, u"mammal"_qs, u"quoll"_qs, 6);
    EXPECT_EQ(ranked(u"quoll"_qs), QStringList({u"eight"_qs, u"in-name"_qs, u"six"_qs}));
}

TEST_F(SearchRank, CountsAWordInTheGroupTwice) {
    add(u"in-group"_qs, u"Nobody"_qs, u"Nemo nemo"_qs, u"bird"_qs, u"birds"_qs, 0);
    add(u"three"_qs, u"Nobody"_qs, u"Nemo nemo"_qs, u"mammal"_qs, u"birds"_qs, 3);
    add(u"one"_qs, u"Nobody"_qs, u"Nemo nemo"_qs, u"mammal"_qs, u"birds"_qs, 1);
    EXPECT_EQ(ranked(u"birds"_qs), QStringList({u"three"_qs, u"in-group"_qs, u"one"_qs}));
}

TEST_F(SearchRank, IndexesTheTitleOfTheGroup) {
    add(u"in-group"_qs, u"Nobody"_qs, u"Nemo nemo"_qs, u"bird"_qs, u"x"_qs, 0);
    // Without the stemmer a title and its raw value are different words.
    const CareLibrary library(
        m_content.path(), "CREATE VIRTUAL TABLE sp USING fts5(sid UNINDEXED, name, scientific, grp, body)");
    EXPECT_EQ(ids(library.search(u"birds"_qs)), QStringList({u"in-group"_qs}));
    EXPECT_EQ(library.search(u"amphibians"_qs).size(), 20);
}

} // namespace
} // namespace ormiva
