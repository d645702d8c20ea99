// Search where SQLite lacks its full-text module: the words are looked for as they stand.

#include "SearchableContent.h"

namespace ormiva {
namespace {

using testing::ids;
using testing::SearchableContent;

class PlainSearch : public ::testing::Test {
protected:
    QStringList found(const QString& query) const { return ids(m_library.search(query)); }

    SearchableContent m_content;
    CareLibrary m_library{m_content.path(), "CREATE VIRTUAL TABLE sp USING no_such_module(sid, name)"};
};

TEST_F(PlainSearch, IsTheRouteWhenTheTableCannotBeMade) {
    EXPECT_FALSE(m_library.usesFTS5());
    EXPECT_EQ(m_library.loadProblems(), QStringList());
    EXPECT_EQ(ids(m_library.species()), SearchableContent::everything());
}

TEST_F(PlainSearch, KeepsTheOrderOfTheLibrary) {
    EXPECT_EQ(found(u"bearded"_qs), QStringList({u"bearded-dragon"_qs, u"leopard-gecko"_qs}));
    EXPECT_EQ(found(u"hay"_qs), QStringList({u"chinchilla"_qs, u"degu"_qs, u"guinea-pig"_qs, u"rabbit"_qs}));
    EXPECT_EQ(found(u"python"_qs), QStringList({u"ball-python"_qs}));
}

TEST_F(PlainSearch, FindsAWordAnywhereInsideAnother) {
    EXPECT_EQ(found(u"bystoma"_qs), QStringList({u"axolotl"_qs}));
    EXPECT_EQ(found(u"humid"_qs), QStringList({u"ball-python"_qs, u"leopard-gecko"_qs, u"hermit-crab"_qs}));
}

TEST_F(PlainSearch, KnowsNoStemsGroupsOrAccents) {
    EXPECT_EQ(found(u"humidity"_qs), QStringList({u"ball-python"_qs, u"hermit-crab"_qs}));
    EXPECT_EQ(found(u"reptiles"_qs), QStringList());
    EXPECT_EQ(found(u"inacio"_qs), QStringList());
    EXPECT_EQ(found(u"INÁCIO"_qs), QStringList({u"axolotl"_qs}));
}

TEST_F(PlainSearch, NeedsEveryWord) {
    EXPECT_EQ(found(u"Stuck shed!"_qs), QStringList({u"ball-python"_qs}));
    EXPECT_EQ(found(u"hay and straw"_qs), QStringList({u"rabbit"_qs}));
    EXPECT_EQ(found(u"stuck hay"_qs), QStringList());
}

TEST_F(PlainSearch, IgnoresCaseAndMarks) {
    EXPECT_EQ(found(u"\"POGONA*("_qs), QStringList({u"bearded-dragon"_qs}));
    EXPECT_EQ(found(u"(t5"_qs), QStringList({u"bearded-dragon"_qs}));
}

TEST_F(PlainSearch, ListsEverythingOrNothingLikeTheIndex) {
    for (const QString& query : {QString(), u"  "_qs, u"***"_qs})
        EXPECT_EQ(found(query), SearchableContent::everything());
    EXPECT_EQ(found(u"zzqxj"_qs), QStringList());
}

TEST_F(PlainSearch, StaysTheRouteAfterLoadingAgain) {
    m_library.reload();
    EXPECT_FALSE(m_library.usesFTS5());
    EXPECT_EQ(found(u"pogona"_qs), QStringList({u"bearded-dragon"_qs}));
}

TEST(SearchWithATableThatSpoilsItsRows, FindsNothingAndDoesNotFail) {
    const SearchableContent content;
    const CareLibrary library(content.path(), "CREATE TABLE sp (sid TEXT)");
    EXPECT_TRUE(library.usesFTS5());
    EXPECT_EQ(library.search(u"hay"_qs), QList<Species>());
    EXPECT_EQ(ids(library.search(u"***"_qs)), SearchableContent::everything());
}

} // namespace
} // namespace ormiva
