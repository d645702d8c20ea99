#include "ShippedContent.h"

#include "SymptomChecker.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

#include <algorithm>

namespace ormiva {
namespace {

using namespace ormiva::testing;

std::string name(const SymptomRule& rule) {
    return "rule " + rule.id.toStdString();
}

std::string name(const Species& animal, const SymptomDef& sign) {
    return animal.id.toStdString() + ", " + sign.id.toStdString();
}

TEST(SymptomRules, ThereAre40SignsAnd80RulesOrMore) {
    EXPECT_GE(shipped().symptoms().size(), 40);
    EXPECT_GE(shipped().rules().size(), 80);
}

TEST(SymptomRules, IdsAreUnique) {
    QStringList signs;
    for (const SymptomDef& sign : shipped().symptoms())
        signs.append(sign.id);
    EXPECT_EQ(signs.removeDuplicates(), 0);
    QStringList rules;
    for (const SymptomRule& rule : shipped().rules())
        rules.append(rule.id);
    EXPECT_EQ(rules.removeDuplicates(), 0);
}

TEST(SymptomRules, EverySignIsOfferedToSomeGroup) {
    for (const SymptomDef& sign : shipped().symptoms())
        EXPECT_FALSE(sign.groups.isEmpty()) << sign.id.toStdString();
}

TEST(SymptomRules, EveryGroupHasItsPictureOfIllness) {
    for (const SpeciesGroupInfo& group : allSpeciesGroups()) {
        const auto offered = std::ranges::count_if(
            shipped().symptoms(), [&](const SymptomDef& sign) { return sign.groups.contains(group.group); });
        EXPECT_GE(offered, 10) << group.id.toStdString();
    }
}

TEST(SymptomRules, EveryRuleNeedsSignsThatExist) {
    QStringList signs;
    for (const SymptomDef& sign : shipped().symptoms())
        signs.append(sign.id);
    for (const SymptomRule& rule : shipped().rules()) {
        EXPECT_FALSE(rule.when.isEmpty()) << name(rule);
        for (const QString& id : rule.when)
            EXPECT_TRUE(signs.contains(id)) << name(rule) << ": " << id.toStdString();
    }
}

TEST(SymptomRules, EveryRuleNamesSpeciesThatExist) {
    for (const SymptomRule& rule : shipped().rules())
        for (const QString& id : rule.species.value_or(QStringList()))
            EXPECT_TRUE(shipped().species(id)) << name(rule) << ": " << id.toStdString();
}

TEST(SymptomRules, EveryRuleCanApplyToSomeAnimal) {
    for (const SymptomRule& rule : shipped().rules())
        EXPECT_TRUE(std::ranges::any_of(shipped().species(), [&](const Species& animal) {
            QSet<QString> offered;
            for (const SymptomDef& sign : shipped().symptoms(animal))
                offered.insert(sign.id);
            return offered.contains(QSet<QString>(rule.when.begin(), rule.when.end())) &&
                   rule.applies(animal, offered);
        })) << name(rule);
}

TEST(SymptomRules, EveryRuleCitesListedSources) {
    for (const SymptomRule& rule : shipped().rules()) {
        EXPECT_FALSE(rule.s.isEmpty()) << name(rule);
        for (const QString& key : rule.s)
            EXPECT_TRUE(shipped().source(key)) << name(rule) << ": " << key.toStdString();
    }
}

TEST(SymptomRules, EveryRedFlagHasItsOwnEmergencyRule) {
    int redFlags = 0;
    for (const SymptomDef& sign : shipped().symptoms()) {
        if (!sign.isRedFlag())
            continue;
        ++redFlags;
        EXPECT_TRUE(std::ranges::any_of(shipped().rules(), [&](const SymptomRule& rule) {
            return rule.id.startsWith(u"rf-") && rule.when == QStringList{sign.id} &&
                   rule.urgency == Urgency::Emergency && !rule.species && !rule.groups;
        })) << sign.id.toStdString();
    }
    EXPECT_GE(redFlags, 10);
}

TEST(SymptomRules, OnlyTheOwnRulesOfRedFlagsAreMarkedAsSuch) {
    for (const SymptomRule& rule : shipped().rules()) {
        if (!rule.id.startsWith(u"rf-"))
            continue;
        EXPECT_EQ(rule.when.size(), 1) << name(rule);
        EXPECT_TRUE(std::ranges::any_of(shipped().symptoms(), [&](const SymptomDef& sign) {
            return sign.isRedFlag() && rule.when == QStringList{sign.id};
        })) << name(rule);
    }
}

TEST(SymptomRules, EveryRedFlagAloneIsAnEmergencyForEveryAnimal) {
    for (const Species& animal : shipped().species())
        for (const SymptomDef& sign : shipped().symptoms(animal))
            if (sign.isRedFlag()) {
                EXPECT_EQ(SymptomChecker::check(animal, {sign.id}, shipped()).urgency, Urgency::Emergency)
                    << name(animal, sign);
            }
}

TEST(SymptomRules, EverySignAloneIsKnownAndExplainedForEveryAnimal) {
    for (const Species& animal : shipped().species())
        for (const SymptomDef& sign : shipped().symptoms(animal)) {
            const SymptomResult result = SymptomChecker::check(animal, {sign.id}, shipped());
            EXPECT_FALSE(result.matched.isEmpty()) << name(animal, sign);
            EXPECT_FALSE(result.possibleCauses().isEmpty()) << name(animal, sign);
            EXPECT_FALSE(result.advice().isEmpty()) << name(animal, sign);
            EXPECT_FALSE(result.sourceKeys().isEmpty()) << name(animal, sign);
            for (const QString& cause : result.possibleCauses())
                EXPECT_TRUE(cause.startsWith(u"Possible: ")) << name(animal, sign);
        }
}

TEST(SymptomRules, CausesAreNounPhrases) {
    static const QRegularExpression capital(u"^[A-Z][a-z]"_qs);
    for (const SymptomRule& rule : shipped().rules()) {
        EXPECT_FALSE(rule.causes.isEmpty()) << name(rule);
        for (const QString& cause : rule.causes) {
            EXPECT_FALSE(cause.trimmed().isEmpty()) << name(rule);
            EXPECT_FALSE(cause.contains(u"possib", Qt::CaseInsensitive)) << name(rule);
            EXPECT_FALSE(cause.endsWith(u'.')) << name(rule);
            EXPECT_FALSE(capital.match(cause).hasMatch()) << name(rule) << ": " << cause.toStdString();
        }
    }
}

TEST(SymptomRules, AdviceIsOneLine) {
    for (const SymptomRule& rule : shipped().rules()) {
        EXPECT_GE(rule.advice.size(), 20) << name(rule);
        EXPECT_FALSE(rule.advice.contains(u'\n')) << name(rule);
        EXPECT_TRUE(rule.advice.endsWith(u'.')) << name(rule);
    }
}

TEST(SymptomRules, AnEmergencyIsNeverGivenTime) {
    static const QRegularExpression hours(u"\\b(24|48)\\b|within \\w+ (hours|days)"_qs);
    for (const SymptomRule& rule : shipped().rules())
        if (rule.urgency == Urgency::Emergency) {
            EXPECT_FALSE(hours.match(rule.advice).hasMatch()) << name(rule);
        }
}

} // namespace
} // namespace ormiva
