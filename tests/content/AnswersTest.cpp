#include "ShippedContent.h"

#include "SymptomChecker.h"

#include <gtest/gtest.h>

#include <algorithm>

// What the keeper is told about certain animals, signs and words, whatever else the content says.

namespace ormiva {
namespace {

using namespace ormiva::testing;

SymptomResult check(const QString& animal, const QString& sign) {
    return SymptomChecker::check(shipped().species(animal).value(), {sign}, shipped());
}

QStringList found(const QString& query) {
    QStringList ids;
    for (const Species& animal : shipped().search(query))
        ids.append(animal.id);
    return ids;
}

bool names(const QStringList& causes, const QString& words) {
    return std::ranges::any_of(causes, [&](const QString& cause) { return cause.contains(words); });
}

TEST(Answers, OfTheSignsWithAFixedUrgency) {
    const QList<std::tuple<QString, QString, Urgency>> fixed = {
        {u"rabbit"_qs, u"not-eating"_qs, Urgency::Emergency},
        {u"guinea-pig"_qs, u"not-eating"_qs, Urgency::Emergency},
        {u"chinchilla"_qs, u"not-eating"_qs, Urgency::Emergency},
        {u"rabbit"_qs, u"no-droppings"_qs, Urgency::Emergency},
        {u"guinea-pig"_qs, u"no-droppings"_qs, Urgency::Emergency},
        {u"chinchilla"_qs, u"no-droppings"_qs, Urgency::Emergency},
        {u"ferret"_qs, u"vomit"_qs, Urgency::Emergency},
        {u"hamster"_qs, u"diarrhea"_qs, Urgency::Emergency},
        {u"bearded-dragon"_qs, u"not-eating"_qs, Urgency::Monitor},
        {u"leopard-gecko"_qs, u"shed"_qs, Urgency::Monitor},
        {u"budgie"_qs, u"discharge"_qs, Urgency::Soon},
        {u"rat"_qs, u"lump"_qs, Urgency::Soon},
        {u"axolotl"_qs, u"water-warm"_qs, Urgency::Emergency},
    };
    for (const auto& [animal, sign, urgency] : fixed) {
        const SymptomResult result = check(animal, sign);
        EXPECT_EQ(info(result.urgency).id, info(urgency).id)
            << animal.toStdString() << ' ' << sign.toStdString();
        EXPECT_FALSE(result.matched.isEmpty()) << animal.toStdString() << ' ' << sign.toStdString();
    }
}

TEST(Answers, OfCollapseNameFerretsToFerretsOnly) {
    EXPECT_TRUE(names(check(u"ferret"_qs, u"collapse"_qs).possibleCauses(), u"ferret"_qs));
    for (const Species& animal : shipped().species())
        if (animal.id != u"ferret") {
            EXPECT_FALSE(names(check(animal.id, u"collapse"_qs).possibleCauses(), u"ferret"_qs))
                << animal.id.toStdString();
        }
}

TEST(Answers, OfBreathingNameBirdsToBirdsOnly) {
    for (const Species& animal : shipped().species())
        EXPECT_EQ(names(check(animal.id, u"breathing"_qs).possibleCauses(), u"in birds"_qs),
                  animal.group == SpeciesGroup::Bird)
            << animal.id.toStdString();
}

TEST(Answers, OfARabbitThatDoesNotEatAreAboutRabbits) {
    const QStringList causes = check(u"rabbit"_qs, u"not-eating"_qs).possibleCauses();
    EXPECT_FALSE(causes.isEmpty());
    for (const QString& other : {u"guinea pig"_qs, u"tarantula"_qs, u"hermit crab"_qs})
        EXPECT_FALSE(names(causes, other)) << other.toStdString();
    EXPECT_TRUE(shipped().species(u"rabbit"_qs)->field(CareField::NotEating).t.contains(u"gut stasis"));
}

TEST(Answers, NeverMixAnEmergencyWithMoreTime) {
    for (const Species& animal : shipped().species()) {
        QStringList all;
        for (const SymptomDef& sign : shipped().symptoms(animal)) {
            const SymptomResult result = check(animal.id, sign.id);
            all.append(sign.id);
            if (result.urgency == Urgency::Emergency) {
                EXPECT_FALSE(result.advice().join(u' ').contains(u"24–48"))
                    << animal.id.toStdString() << ' ' << sign.id.toStdString();
            }
        }
        const SymptomResult everything =
            SymptomChecker::check(animal, QSet<QString>(all.begin(), all.end()), shipped());
        EXPECT_EQ(everything.urgency, Urgency::Emergency) << animal.id.toStdString();
        EXPECT_FALSE(everything.advice().join(u' ').contains(u"24–48")) << animal.id.toStdString();
    }
}

TEST(Answers, AreNeverADiagnosis) {
    for (const PlacedText& text : sheetTexts() + symptomTexts())
        for (const QString& words : {u"diagnosis:"_qs, u"your pet has "_qs, u"is diagnosed"_qs})
            EXPECT_FALSE(text.text.contains(words, Qt::CaseInsensitive)) << text.place.toStdString();
}

TEST(Answers, OfTheSearch) {
    EXPECT_EQ(found(u"bearded"_qs).value(0), u"bearded-dragon"_qs);
    for (const QString& animal : {u"rabbit"_qs, u"guinea-pig"_qs, u"chinchilla"_qs, u"degu"_qs})
        EXPECT_TRUE(found(u"hay"_qs).contains(animal)) << animal.toStdString();
    EXPECT_TRUE(found(u"stuck shed"_qs).contains(u"ball-python"));
    EXPECT_TRUE(found(u"ambystoma"_qs).contains(u"axolotl"));
    EXPECT_TRUE(found(u"Pogona"_qs).contains(u"bearded-dragon"));
    EXPECT_GE(found(u"UVB"_qs).size(), 10);
    EXPECT_EQ(found(u"zzqxj"_qs), QStringList());
    EXPECT_EQ(found(QString()).size(), shipped().species().size());

    const QStringList humid = found(u"humid"_qs);
    for (const QString& animal : found(u"humidity"_qs))
        EXPECT_TRUE(humid.contains(animal)) << animal.toStdString();
    for (const Species& animal : shipped().species())
        if (animal.group == SpeciesGroup::Reptile) {
            EXPECT_TRUE(found(u"reptiles"_qs).contains(animal.id)) << animal.id.toStdString();
        }
}

} // namespace
} // namespace ormiva
