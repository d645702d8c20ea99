#include "DoseScanner.h"

#include "LibraryPrinters.h"
#include "VLKHelp.h"

#include <gtest/gtest.h>

namespace ormiva {

namespace DoseScanner {
inline void PrintTo(const ShippedText& text, std::ostream* out) {
    *out << ::testing::PrintToString(QStringList{text.label, text.content});
}
} // namespace DoseScanner

namespace {

using namespace ormiva::testing;
using DoseScanner::findings;

TEST(DoseScanner, HasItsSixPatternsAsGiven) {
    QStringList patterns;
    for (const QRegularExpression& pattern : DoseScanner::patterns())
        patterns.append(pattern.pattern());
    EXPECT_EQ(patterns, QStringList({
                            uR"(\b\d+(\.\d+)?\s*(mg|mcg|µg|μg|iu|ug)\b)"_qs,
                            uR"(\b(mg|mcg|µg|μg|ml|g|iu|units?)\s*/\s*(kg|lb|kilogram))"_qs,
                            uR"(\bper\s+(kg|kilogram|pound)\s+(of\s+)?body\s*weight)"_qs,
                            uR"(\b\d+(\.\d+)?\s*(ml|cc)\b)"_qs,
                            uR"(\bq\s?\d{1,2}\s?h\b)"_qs,
                            uR"(\b\d+(\.\d+)?\s*(tablets?|capsules?|drops)\s+(once|twice|daily|every))"_qs,
                        }));
}

TEST(DoseScanner, FindsWhatLooksLikeADose) {
    const QList<std::pair<QString, QStringList>> cases = {
        {u"give 0.5 mg/kg"_qs, {u"0.5 mg"_qs, u"mg/kg"_qs}},
        {u"10 mg once"_qs, {u"10 mg"_qs}},
        {u"0.2 mL/kg"_qs, {u"mL/kg"_qs, u"0.2 mL"_qs}},
        {u"2 ml by mouth"_qs, {u"2 ml"_qs}},
        {u"every q12h"_qs, {u"q12h"_qs}},
        {u"50 IU"_qs, {u"50 IU"_qs}},
        {u"25 mcg"_qs, {u"25 mcg"_qs}},
        {u"1 tablet twice daily"_qs, {u"1 tablet twice"_qs}},
        {u"5 mg per kg body weight"_qs, {u"5 mg"_qs, u"per kg body weight"_qs}},
        {u"5MG"_qs, {u"5MG"_qs}},
        {u"2 g/kg"_qs, {u"g/kg"_qs}},
        {u"a rate of g / kg"_qs, {u"g / kg"_qs}},
        {u"500 cc of water"_qs, {u"500 cc"_qs}},
        {u"0.5ml"_qs, {u"0.5ml"_qs}},
        {u"q 8 h"_qs, {u"q 8 h"_qs}},
        {u"3 \u00B5g"_qs, {u"3 \u00B5g"_qs}},
        {u"3 \u03BCg"_qs, {u"3 \u03BCg"_qs}},
        {u"\u00B5g/kg"_qs, {u"\u00B5g/kg"_qs}},
        {u"\u03BCg/lb"_qs, {u"\u03BCg/lb"_qs}},
        {u"10 units/kg"_qs, {u"units/kg"_qs}},
        {u"2 ug"_qs, {u"2 ug"_qs}},
        {u"per pound of body weight"_qs, {u"per pound of body weight"_qs}},
        {u"per kilogram bodyweight"_qs, {u"per kilogram bodyweight"_qs}},
        {u"2.5 capsules every morning"_qs, {u"2.5 capsules every"_qs}},
        {u"3 drops\ndaily"_qs, {u"3 drops\ndaily"_qs}},
        {u"10\u00A0mg"_qs, {u"10\u00A0mg"_qs}},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(findings(text), expected) << text.toStdString();
}

TEST(DoseScanner, LetsEverythingElsePass) {
    for (const QString& text :
         {u""_qs, u"Keep at 30–35 °C (86–95 °F)"_qs, u"60–70% humidity"_qs, u"about 120 × 60 cm"_qs,
          u"Weigh weekly in grams"_qs, u"UVB 290–320 nm"_qs, u"12 hours a day"_qs,
          u"1 tablespoon of greens"_qs, u"300 g"_qs, u"2 g"_qs, u"q12"_qs, u"1 tablet"_qs, u"2 mgs"_qs,
          u"5 ccs"_qs, u"acq12h"_qs, u"10 kg"_qs, u"per kg of food"_qs, u"q123h"_qs, u"3 drops a day"_qs})
        EXPECT_EQ(findings(text), QStringList()) << text.toStdString();
}

TEST(DoseScanner, ListsByPatternThenByPositionAndKeepsRepeats) {
    EXPECT_EQ(findings(u"2 ml, 5 mg/kg q12h, 5 mg, 7 cc"_qs),
              QStringList({u"5 mg"_qs, u"5 mg"_qs, u"mg/kg"_qs, u"2 ml"_qs, u"7 cc"_qs, u"q12h"_qs}));
}

TEST(DoseScanner, IsNotStoppedByABrokenCharacter) {
    const QString broken = u"5 mg "_qs + QChar(0xD800) + u" 6 mg"_qs;
    EXPECT_EQ(findings(broken), QStringList({u"5 mg"_qs, u"6 mg"_qs}));
}

TEST(DoseScanner, CompilesItsPatternsOnce) {
    EXPECT_EQ(&DoseScanner::patterns(), &DoseScanner::patterns());
}

TEST(DoseScanner, TakesAllShippedTextsInOrder) {
    const ContentFolder folder;
    folder.species(u"b.json"_qs, Json::species(u"gecko"_qs, u"Gecko"_qs, u"reptile"_qs));
    folder.species(u"a.json"_qs, Json::species(u"rat"_qs, u"Rat"_qs));
    folder.sources(Json::bytes(Json::sourceFile({Json::source(u"src-a"_qs)})));
    QJsonObject rule = Json::rule(u"rf-collapse"_qs, {u"collapse"_qs}, u"emergency"_qs);
    rule[u"advice"_qs] = u"Call a vet."_qs;
    rule[u"causes"_qs] = Json::list({u"shock"_qs, u"heat"_qs});
    QJsonObject bare = Json::rule(u"bare"_qs, {u"collapse"_qs}, u"soon"_qs);
    bare[u"advice"_qs] = u"Watch."_qs;
    bare[u"causes"_qs] = QJsonArray();
    folder.symptoms(Json::bytes(Json::symptomFile(
        {Json::with(Json::symptom(u"collapse"_qs, {u"mammal"_qs}), u"label"_qs, u"Collapsed"_qs)},
        {rule, bare})));
    VLKHelp::topics = {{u"start"_qs, u"Start here"_qs, u"Welcome.\n\n• One"_qs, {u"word"_qs}}};

    const CareLibrary library(folder.path());
    const QList<DoseScanner::ShippedText> texts = DoseScanner::shippedTexts(library);
    const QList<VLKHelpTopic> topics = VLKHelp::allTopics();
    VLKHelp::topics.clear();

    const QList<DoseScanner::ShippedText> expected = {
        {u"species rat"_qs, library.species(u"rat"_qs)->allText()},
        {u"species gecko"_qs, library.species(u"gecko"_qs)->allText()},
        {u"symptom collapse"_qs, u"Collapsed"_qs},
        {u"rule rf-collapse"_qs, u"Call a vet.\nshock\nheat"_qs},
        {u"rule bare"_qs, u"Watch."_qs},
        {u"help start"_qs, u"Start here\nWelcome.\n\n• One"_qs},
        {u"help look"_qs, topics.at(1).title + u'\n' + topics.at(1).body},
        {u"help about"_qs, topics.at(2).title + u'\n' + topics.at(2).body},
    };
    EXPECT_EQ(texts, expected);
}

} // namespace
} // namespace ormiva
