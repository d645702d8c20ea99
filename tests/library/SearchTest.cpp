#include "SearchableContent.h"

#include <random>

namespace ormiva {
namespace {

using testing::ids;
using testing::SearchableContent;
using testing::sorted;

const QStringList reptiles = {u"ball-python"_qs, u"bearded-dragon"_qs, u"leopard-gecko"_qs};
const QStringList hayEaters = {u"chinchilla"_qs, u"degu"_qs, u"guinea-pig"_qs, u"rabbit"_qs};

class Search : public ::testing::Test {
protected:
    QStringList found(const QString& query) const { return ids(m_library.search(query)); }
    /// Without the order in which they rank.
    QStringList foundSet(const QString& query) const { return sorted(found(query)); }

    SearchableContent m_content;
    CareLibrary m_library{m_content.path()};
};

TEST_F(Search, HasItsIndexAndContent) {
    EXPECT_TRUE(m_library.usesFTS5());
    EXPECT_EQ(m_library.loadProblems(), QStringList());
    EXPECT_EQ(ids(m_library.species()), SearchableContent::everything());
}

TEST_F(Search, HasAnIndexOfTheExactForm) {
    EXPECT_EQ(SpeciesIndex::tableStatement,
              QByteArray("CREATE VIRTUAL TABLE sp USING fts5(sid UNINDEXED, name, scientific, grp, body, "
                         "tokenize='porter unicode61 remove_diacritics 2')"));
}

TEST_F(Search, PutsANameBeforeAMention) {
    EXPECT_EQ(found(u"bearded"_qs), QStringList({u"bearded-dragon"_qs, u"leopard-gecko"_qs}));
    EXPECT_EQ(found(u"Bearded Dragon"_qs), QStringList({u"bearded-dragon"_qs, u"leopard-gecko"_qs}));
}

TEST_F(Search, FindsAWordInTheText) {
    EXPECT_EQ(foundSet(u"hay"_qs), hayEaters);
    EXPECT_EQ(foundSet(u"UVB"_qs), QStringList({u"bearded-dragon"_qs, u"leopard-gecko"_qs}));
}

TEST_F(Search, FindsWhatBeginsWithTheWord) {
    const QStringList humid = {u"ball-python"_qs, u"hermit-crab"_qs, u"leopard-gecko"_qs};
    EXPECT_EQ(foundSet(u"humid"_qs), humid);
    for (const QString& id : found(u"humidity"_qs))
        EXPECT_TRUE(humid.contains(id)) << id.toStdString();
    EXPECT_EQ(found(u"ambyst"_qs), QStringList({u"axolotl"_qs}));
    EXPECT_EQ(found(u"bystoma"_qs), QStringList());
}

TEST_F(Search, FindsWordsOfOneStem) {
    EXPECT_EQ(foundSet(u"humidity"_qs), foundSet(u"humid"_qs));
    EXPECT_EQ(found(u"shell"_qs), QStringList({u"hermit-crab"_qs}));
    EXPECT_EQ(found(u"shelled"_qs), QStringList({u"hermit-crab"_qs}));
}

TEST_F(Search, FindsScientificNamesWhateverTheCase) {
    for (const QString& query : {u"Pogona"_qs, u"pogona"_qs, u"POGONA VITTICEPS"_qs})
        EXPECT_EQ(found(query), QStringList({u"bearded-dragon"_qs})) << query.toStdString();
    EXPECT_EQ(found(u"ambystoma"_qs), QStringList({u"axolotl"_qs}));
}

TEST_F(Search, FindsSeveralWordsWhereverTheyStand) {
    EXPECT_EQ(found(u"stuck shed"_qs), QStringList({u"ball-python"_qs}));
    EXPECT_EQ(found(u"Shed, STUCK!"_qs), QStringList({u"ball-python"_qs}));
    EXPECT_EQ(found(u"reptiles regius humidity"_qs), QStringList({u"ball-python"_qs}));
    EXPECT_EQ(found(u"stuck hay"_qs), QStringList());
}

TEST_F(Search, FindsAGroupByItsTitle) {
    EXPECT_EQ(foundSet(u"reptiles"_qs), reptiles);
    EXPECT_EQ(foundSet(u"Reptile"_qs), reptiles);
    EXPECT_EQ(foundSet(u"mammals"_qs), hayEaters);
    EXPECT_EQ(found(u"amphibians"_qs), QStringList({u"axolotl"_qs}));
    EXPECT_EQ(found(u"birds"_qs), QStringList({u"budgie"_qs}));
    EXPECT_EQ(found(u"invertebrates"_qs), QStringList({u"hermit-crab"_qs}));
}

TEST_F(Search, FindsNoIdsThatAreNotInTheText) {
    EXPECT_EQ(found(u"budgie"_qs), QStringList());
    EXPECT_EQ(found(u"Budgerigar"_qs), QStringList({u"budgie"_qs}));
}

TEST_F(Search, FindsDigitsInsideWords) {
    EXPECT_EQ(found(u"t5"_qs), QStringList({u"bearded-dragon"_qs}));
    EXPECT_EQ(found(u"(T5)"_qs), QStringList({u"bearded-dragon"_qs}));
    EXPECT_EQ(found(u"t8"_qs), QStringList());
}

TEST_F(Search, TakesAccentedAndPlainSpellingsForOneWord) {
    for (const QString& query : {u"Inácio"_qs, u"inacio"_qs, u"INÁCIO"_qs, u"ina\u0301cio"_qs, u"ìnâciö"_qs})
        EXPECT_EQ(found(query), QStringList({u"axolotl"_qs})) << query.toStdString();
    EXPECT_EQ(foundSet(u"häy"_qs), hayEaters);
}

TEST_F(Search, FindsNothingForAMadeUpWord) {
    EXPECT_EQ(found(u"zzqxj"_qs), QStringList());
    EXPECT_EQ(found(u"hay zzqxj"_qs), QStringList());
}

TEST_F(Search, ListsEverythingWhereThereIsNoWord) {
    for (const QString& query : {QString(), u"   "_qs, u"***"_qs, u"\""_qs, u"()"_qs, u"-"_qs, u"🦎"_qs})
        EXPECT_EQ(found(query), SearchableContent::everything()) << query.toStdString();
}

TEST_F(Search, TakesOperatorsForWords) {
    EXPECT_EQ(found(u"hay and straw"_qs), QStringList({u"rabbit"_qs}));
    EXPECT_EQ(found(u"hay AND straw"_qs), QStringList({u"rabbit"_qs}));
    EXPECT_EQ(foundSet(u"hay straw"_qs), QStringList({u"guinea-pig"_qs, u"rabbit"_qs}));
    EXPECT_EQ(found(u"hay OR humid"_qs), QStringList());
    EXPECT_EQ(found(u"hay NOT straw"_qs), QStringList());
    EXPECT_EQ(found(u"NEAR(hay straw)"_qs), QStringList());
    EXPECT_EQ(found(u"name : rabbit"_qs), QStringList());
}

TEST_F(Search, TakesStrayMarksForBlanks) {
    const QList<std::pair<QString, QString>> pairs = {
        {u"\"hay"_qs, u" hay"_qs},
        {u"hay\""_qs, u"hay "_qs},
        {u"hay*"_qs, u"hay "_qs},
        {u"*hay"_qs, u" hay"_qs},
        {u"* hay *"_qs, u"hay"_qs},
        {u"(hay"_qs, u" hay"_qs},
        {u"hay)"_qs, u"hay "_qs},
        {u"^hay"_qs, u" hay"_qs},
        {u"-hay"_qs, u" hay"_qs},
        {u"{hay}"_qs, u" hay "_qs},
        {u"hay + straw"_qs, u"hay straw"_qs},
        {u"\"\"\"hay\"\""_qs, u"hay"_qs},
        {u"'hay'"_qs, u"hay"_qs},
        {u"hay;--"_qs, u"hay"_qs},
        {u"body:\"hay\"*"_qs, u"body hay"_qs},
    };
    for (const auto& [marks, blanks] : pairs)
        EXPECT_EQ(found(marks), found(blanks)) << marks.toStdString();
    EXPECT_EQ(foundSet(u"\"hay"_qs), hayEaters);
    EXPECT_EQ(found(u"'); DROP TABLE sp; --"_qs), QStringList());
    EXPECT_EQ(foundSet(u"hay"_qs), hayEaters);
}

TEST_F(Search, AnswersEveryQuery) {
    std::mt19937 random(12);
    const QString marks = u"\"*()-^:+{}'`,;.!?&|~<>=[]#@$%\\/_\u00a0\u2013"_qs;
    const QString alphabet = marks + u"  hayHAYdragon5áé\u0301蜥"_qs;
    const auto size = static_cast<std::size_t>(alphabet.size());
    int answered = 0;
    for (int i = 0; i < 1000; ++i) {
        QString query;
        for (std::size_t length = random() % 8; length > 0; --length)
            query += alphabet.at(static_cast<qsizetype>(random() % size));
        QString blanked = query;
        for (QChar& c : blanked)
            if (marks.contains(c))
                c = u' ';
        ASSERT_EQ(found(query), found(blanked)) << query.toStdString();
        answered += found(query).isEmpty() ? 0 : 1;
    }
    EXPECT_GT(answered, 100);
}

TEST_F(Search, SurvivesAQueryOfManyWords) {
    EXPECT_EQ(foundSet(u"hay "_qs.repeated(3000)), hayEaters);
    EXPECT_EQ(found(u"a"_qs.repeated(100'000)), QStringList());
}

TEST(SearchWithDuplicates, MapsEachRowToTheFirstSpeciesOfItsId) {
    const testing::ContentFolder content;
    content.addValidLists();
    content.species(u"a.json"_qs, testing::Json::species(u"rabbit"_qs, u"Zwerg"_qs));
    content.species(u"b.json"_qs, testing::Json::species(u"rabbit"_qs, u"Angora"_qs));
    const CareLibrary library(content.path());
    const Species first = library.species().first();
    EXPECT_EQ(library.search(u"zwerg"_qs), QList<Species>({first}));
    EXPECT_EQ(library.search(u"exemplum"_qs), QList<Species>({first, first}));
}

} // namespace
} // namespace ormiva
