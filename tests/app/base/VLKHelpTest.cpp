#include "VLKHelp.h"

#include "Printers.h"

#include <gtest/gtest.h>

namespace ormiva {
namespace {

class VLKHelpTopics : public ::testing::Test {
protected:
    ~VLKHelpTopics() override { VLKHelp::topics.clear(); }

    static QStringList ids() {
        QStringList ids;
        for (const VLKHelpTopic& topic : VLKHelp::allTopics())
            ids.append(topic.id);
        return ids;
    }
};

TEST_F(VLKHelpTopics, EndWithTheTwoOfTheKit) {
    EXPECT_EQ(ids(), QStringList({u"look"_qs, u"about"_qs}));
    VLKHelp::topics = {{u"start"_qs, u"Start"_qs, {}, {}}, {u"keys"_qs, u"Keys"_qs, {}, {}}};
    EXPECT_EQ(ids(), QStringList({u"start"_qs, u"keys"_qs, u"look"_qs, u"about"_qs}));
}

TEST_F(VLKHelpTopics, OfTheApplicationReplaceThoseOfTheKit) {
    const VLKHelpTopic own{u"look"_qs, u"Our looks"_qs, u"Text"_qs, {}};
    VLKHelp::topics = {own, {u"keys"_qs, u"Keys"_qs, {}, {}}};
    EXPECT_EQ(ids(), QStringList({u"look"_qs, u"keys"_qs, u"about"_qs}));
    EXPECT_EQ(VLKHelp::allTopics().first(), own);
}

TEST_F(VLKHelpTopics, OfTheKitSayWhatTheyShould) {
    const VLKHelpTopic look = VLKHelp::allTopics().at(0);
    EXPECT_EQ(look.title, u"Themes and interface zoom"_qs);
    EXPECT_EQ(
        look.body,
        u"## Themes\nChoose a color theme from the Theme menu: Cobalt Gunmetal, Candy Red Titanium, "
        u"Rose Gold, Lavender Pearl, Midnight Black or Brushed Gray. Some apps add more.\n\n## "
        u"Interface zoom\nMake everything bigger or smaller, from 85% to 200%:\n• View → Zoom In (⌘ +) "
        u"and Zoom Out (⌘ −)\n• View → Actual Size (⌘ 0)\n• View → Zoom Level to pick an exact size."_qs);
    EXPECT_EQ(look.keywords, QStringList({u"color"_qs, u"colour"_qs, u"theme"_qs, u"zoom"_qs, u"bigger"_qs,
                                          u"smaller"_qs, u"text size"_qs, u"font size"_qs, u"dark"_qs}));
    const VLKHelpTopic about = VLKHelp::allTopics().at(1);
    EXPECT_EQ(about.title, u"About Ventrel"_qs);
    EXPECT_EQ(about.body, u"VLK Ormiva is made by Ventrel (VLK).\n\nWebsite, updates and support: "
                          u"https://ventrel.example"_qs);
    EXPECT_EQ(about.keywords, QStringList({u"vlk"_qs, u"support"_qs, u"contact"_qs, u"website"_qs,
                                           u"ventrel"_qs, u"credits"_qs}));
}

class VLKHelpSearch : public VLKHelpTopics {
protected:
    VLKHelpSearch() {
        VLKHelp::topics = {
            {u"one"_qs, u"First"_qs, u"A vet in café Noir\nstuck-shed"_qs, {u"bulb"_qs}},
            {u"two"_qs, u"The Vét"_qs, u"Nothing"_qs, {u"lamp"_qs}},
            {u"three"_qs, u"Third"_qs, u"bulb"_qs, {u"vet"_qs, u"two words"_qs}},
            {u"look"_qs, u"L"_qs, {}, {}},
            {u"about"_qs, u"A"_qs, {}, {}},
        };
    }

    static QString found(const QString& query) {
        QStringList ids;
        for (const VLKHelpTopic& topic : VLKHelp::search(query))
            ids.append(topic.id);
        return ids.join(u' ');
    }
};

TEST_F(VLKHelpSearch, WithoutWordsListsEverythingInOrder) {
    EXPECT_EQ(found(u""_qs), u"one two three look about"_qs);
    EXPECT_EQ(found(u" \t\n\u00a0"_qs), u"one two three look about"_qs);
}

TEST_F(VLKHelpSearch, PutsTopicsWithAWordInTheTitleFirst) {
    EXPECT_EQ(found(u"vet"_qs), u"two one three"_qs);
    EXPECT_EQ(found(u"third vet"_qs), u"three"_qs);
    EXPECT_EQ(found(u"bulb"_qs), u"one three"_qs); // the order of the topics within a class
}

TEST_F(VLKHelpSearch, IgnoresCaseAndAccentsOnBothSides) {
    for (const QString& query : {u"VET"_qs, u"vét"_qs, u"VÉT"_qs, u"ve\u0301t"_qs})
        EXPECT_EQ(found(query), u"two one three"_qs) << query.toStdString();
    EXPECT_EQ(found(u"cafe"_qs), u"one"_qs);
    EXPECT_EQ(found(u"CAFÉ"_qs), u"one"_qs);
}

TEST_F(VLKHelpSearch, WantsEveryWordInAnyField) {
    EXPECT_EQ(found(u"vet bulb"_qs), u"one three"_qs);
    EXPECT_EQ(found(u"vet lamp"_qs), u"two"_qs);
    EXPECT_EQ(found(u"vet missing"_qs), QString());
    EXPECT_EQ(found(u"ulb"_qs), u"one three"_qs); // a piece of a word is enough
}

TEST_F(VLKHelpSearch, PartsWordsAtWhiteSpaceAlone) {
    EXPECT_EQ(found(u"stuck-shed"_qs), u"one"_qs);
    EXPECT_EQ(found(u"shed-stuck"_qs), QString());
    EXPECT_EQ(found(u"stuck shed"_qs), u"one"_qs);
}

TEST_F(VLKHelpSearch, DecideTheTopicOnShow) {
    const auto shown = [](const std::optional<QString>& selected, const std::optional<QString>& initial,
                          const QString& query) {
        const auto topic = VLKHelp::current(selected, initial, VLKHelp::search(query));
        return topic ? topic->id : u"-"_qs;
    };
    EXPECT_EQ(shown({}, {}, u""_qs), u"one"_qs);
    EXPECT_EQ(shown({}, {}, u"vet"_qs), u"two"_qs);
    EXPECT_EQ(shown({}, {}, u"missing"_qs), u"-"_qs);
    EXPECT_EQ(shown({}, u"three"_qs, u"vet"_qs), u"three"_qs);
    EXPECT_EQ(shown({}, u"three"_qs, u"missing"_qs), u"three"_qs);
    EXPECT_EQ(shown(u"one"_qs, u"three"_qs, u"vet"_qs), u"one"_qs);
    EXPECT_EQ(shown(u"unknown"_qs, u"three"_qs, u"vet"_qs), u"two"_qs);
    EXPECT_EQ(shown({}, u"unknown"_qs, u""_qs), u"one"_qs);
    EXPECT_EQ(shown(u"unknown"_qs, {}, u"missing"_qs), u"-"_qs);
}

TEST(VLKHelpBlocks, KnowHeadingsBulletsAndParagraphs) {
    using Kind = VLKHelp::Block::Kind;
    const QList<VLKHelp::Block> expected = {
        {Kind::paragraph, u"Welcome."_qs}, {Kind::heading, u"One"_qs},     {Kind::bullet, u"first"_qs},
        {Kind::bullet, u"second"_qs},      {Kind::paragraph, u"•none"_qs}, {Kind::paragraph, u"##none"_qs},
        {Kind::paragraph, u"# none"_qs},   {Kind::paragraph, u"##"_qs},
    };
    EXPECT_EQ(
        VLKHelp::blocks(u"Welcome.\n\n## One\n• first\n \t \n  • second  \n•none\n##none\n# none\n## \n"_qs),
        expected);
    EXPECT_TRUE(VLKHelp::blocks({}).isEmpty());
}

TEST(VLKHelp, IsShownByTheOpener) {
    QList<std::optional<QString>> shown;
    VLKHelp::opener = [&](const std::optional<QString>& topic) { shown.append(topic); };
    VLKHelp::show();
    VLKHelp::show(u"keys"_qs);
    VLKHelp::opener = nullptr;
    VLKHelp::show();
    EXPECT_EQ(shown, QList<std::optional<QString>>({std::nullopt, u"keys"_qs}));
}

} // namespace
} // namespace ormiva
