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

} // namespace
} // namespace ormiva
