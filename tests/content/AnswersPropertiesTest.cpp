#include "ShippedContent.h"

#include "SymptomChecker.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

// What holds for every animal and every set of ticks, tried on many. The seed is fixed.

namespace ormiva {
namespace {

using namespace ormiva::testing;

constexpr int cases = 20'000;

class Ticks {
public:
    explicit Ticks(unsigned seed)
        : m_engine(seed) {}

    int between(int least, int most) { return std::uniform_int_distribution(least, most)(m_engine); }
    const Species& animal() {
        const auto& all = shipped().species();
        return all.at(between(0, static_cast<int>(all.size()) - 1));
    }
    /// Up to seven signs, also of other animals, and now and then one that does not exist.
    QSet<QString> signs() {
        const auto& all = shipped().symptoms();
        QSet<QString> ticked;
        for (int i = between(0, 7); i > 0; --i)
            ticked.insert(all.at(between(0, static_cast<int>(all.size()) - 1)).id);
        if (between(0, 20) == 0)
            ticked.insert(u"no-such-sign"_qs);
        return ticked;
    }

private:
    std::mt19937 m_engine;
};

std::string told(const Species& animal, const QSet<QString>& ticked) {
    return (animal.id + u": "_qs + QStringList(ticked.begin(), ticked.end()).join(u' ')).toStdString();
}

TEST(AnswersProperties, ARedFlagIsAlwaysAnEmergency) {
    Ticks ticks(1);
    int emergencies = 0;
    for (int i = 0; i < cases; ++i) {
        const Species& animal = ticks.animal();
        const QSet<QString> ticked = ticks.signs();
        const SymptomResult result = SymptomChecker::check(animal, ticked, shipped());
        const bool flagged = std::ranges::any_of(shipped().symptoms(animal), [&](const SymptomDef& sign) {
            return sign.isRedFlag() && ticked.contains(sign.id);
        });
        ASSERT_EQ(!result.redFlags.isEmpty(), flagged) << told(animal, ticked);
        if (flagged) {
            ++emergencies;
            ASSERT_EQ(result.urgency, Urgency::Emergency) << told(animal, ticked);
        }
    }
    EXPECT_GE(emergencies, 5'000);
}

TEST(AnswersProperties, OneMoreSignNeverLowersWhatARuleOrARedFlagSaid) {
    Ticks ticks(2);
    int compared = 0;
    for (int i = 0; i < cases; ++i) {
        const Species& animal = ticks.animal();
        QSet<QString> ticked = ticks.signs();
        const SymptomResult before = SymptomChecker::check(animal, ticked, shipped());
        ticked.unite(ticks.signs());
        const SymptomResult after = SymptomChecker::check(animal, ticked, shipped());
        // "Soon" for want of any rule is not what a rule said.
        if (before.matched.isEmpty() && before.redFlags.isEmpty())
            continue;
        ++compared;
        ASSERT_GE(rank(after.urgency), rank(before.urgency)) << told(animal, ticked);
    }
    EXPECT_GE(compared, 10'000);
}

TEST(AnswersProperties, WordsArePossibilitiesAndNeverMixTimeFrames) {
    Ticks ticks(3);
    for (int i = 0; i < cases; ++i) {
        const Species& animal = ticks.animal();
        const QSet<QString> ticked = ticks.signs();
        const SymptomResult result = SymptomChecker::check(animal, ticked, shipped());
        QStringList causes = result.possibleCauses();
        for (const QString& cause : causes)
            ASSERT_TRUE(cause.startsWith(u"Possible: ") && cause.size() > 10) << told(animal, ticked);
        ASSERT_EQ(causes.removeDuplicates(), 0) << told(animal, ticked);
        QStringList advice = result.advice();
        ASSERT_EQ(advice.removeDuplicates(), 0) << told(animal, ticked);
        if (result.urgency == Urgency::Emergency) {
            ASSERT_FALSE(advice.join(u' ').contains(u"24–48")) << told(animal, ticked);
        }
        ASSERT_EQ(result.matched.isEmpty(), result.sourceKeys().isEmpty()) << told(animal, ticked);
        ASSERT_EQ(SymptomChecker::check(animal, ticked, shipped()), result);
    }
}

} // namespace
} // namespace ormiva
