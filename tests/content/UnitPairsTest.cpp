#include "UnitPairs.h"

#include "Printers.h"

#include <gtest/gtest.h>

namespace ormiva::testing {
namespace {

TEST(UnitPairs, AgreeWhenTheArithmeticDoes) {
    const QList<std::pair<QString, int>> cases = {
        {u"30–35 °C (86–95 °F)"_qs, 2},
        {u"at 25 °C (77 °F) and 38–40 °C (100–104 °F)"_qs, 3},
        {u"120 × 60 × 45 cm (47 × 24 × 18 in)"_qs, 3},
        {u"1.2–1.5 m (4–5 ft) long"_qs, 2},
        {u"15 to 20 kg (33–44 lb)"_qs, 2},
        {u"25–35 g (0.9–1.2 oz)"_qs, 2},
        {u"75 L (20 US gal)"_qs, 1},
        {u"6 m² (65 sq ft)"_qs, 1},
        {u"2–3 mm (about 0.1 in)"_qs, 2},
        {u"5–7 °C cooler (a drop of 9–13 °F)"_qs, 2},
        {u"no figures"_qs, 0},
        {u"12 cm of soil"_qs, 0},
    };
    for (const auto& [text, count] : cases) {
        EXPECT_EQ(unitPairs(text).count, count) << text.toStdString();
        if (!text.contains(u"about")) {
            EXPECT_EQ(unitPairs(text).wrong, QStringList()) << text.toStdString();
        }
    }
}

TEST(UnitPairs, DisagreeWhenAFigureIsWrongOrMissing) {
    for (const QString& text :
         {u"30–35 °C (86–93 °F)"_qs, u"30–35 °C (95 °F)"_qs, u"25 °C (75 °F)"_qs,
          u"120 × 60 cm (47 × 18 in)"_qs, u"120 × 60 cm (47 × 24 × 18 in)"_qs, u"1 kg (3 lb)"_qs,
          u"10 L (20 US gal)"_qs, u"2 m (8 ft)"_qs, u"5–7 °C cooler (a drop of 41–45 °F)"_qs})
        EXPECT_EQ(unitPairs(text).wrong, QStringList({text.chopped(1)})) << text.toStdString();
}

TEST(Temperatures, StandInBothUnits) {
    for (const QString& text :
         {u""_qs, u"20 °C (68 °F)"_qs, u"20–25 °C by day (68–77 °F), 18 °C (64 °F) by night"_qs})
        EXPECT_EQ(temperaturesInOneUnit(text), QStringList()) << text.toStdString();
    EXPECT_EQ(temperaturesInOneUnit(u"Keep at 20 °C"_qs), QStringList({u"Keep at 20 °C"_qs}));
    EXPECT_EQ(temperaturesInOneUnit(u"20 °C (68 °F)\nnever 90 °F"_qs), QStringList({u"never 90 °F"_qs}));
}

} // namespace
} // namespace ormiva::testing
