#include "ChecklistTemplate.h"

#include "LibraryPrinters.h"

#include <gtest/gtest.h>

namespace ormiva {
namespace {

using ChecklistTemplate::gist;

/// The list of a group as "text | field".
QStringList lines(SpeciesGroup group) {
    Species animal;
    animal.id = u"any"_qs;
    animal.group = group;
    QStringList lines;
    for (const ChecklistTemplate::Item& item : ChecklistTemplate::items(animal))
        lines.append(item.text + u" | "_qs + (item.field ? info(*item.field).id : u"-"_qs));
    return lines;
}

TEST(ChecklistTemplate, OfMammals) {
    EXPECT_EQ(lines(SpeciesGroup::Mammal),
              QStringList({
                  u"Cage meets the minimum size and is escape-proof | enclosure"_qs,
                  u"Room temperature in the safe range | temperature"_qs,
                  u"Bedding clean and dust-free | substrate"_qs,
                  u"Hide or nest box available | hides"_qs,
                  u"Fresh water — bottle or bowl working | diet"_qs,
                  u"Food portions match the care sheet | diet"_qs,
                  u"Toys safe, no loose or chewable small parts | enrichment"_qs,
                  u"Out-of-cage time / exercise done | handling"_qs,
                  u"Droppings and urine look normal | normal"_qs,
              }));
}

TEST(ChecklistTemplate, OfReptiles) {
    EXPECT_EQ(lines(SpeciesGroup::Reptile),
              QStringList({
                  u"Warm/basking end temperature checked with a thermometer | temperature"_qs,
                  u"Cool end and night temperature checked | temperature"_qs,
                  u"Every heater is on a thermostat and guarded (no hot rocks) | temperature"_qs,
                  u"Humidity checked with a hygrometer | humidity"_qs,
                  u"UVB lamp on its daily cycle, nothing blocking it, replacement date noted | lighting"_qs,
                  u"Hides at the warm and cool ends | hides"_qs,
                  u"Safe substrate; feeding off loose substrate | substrate"_qs,
                  u"Water bowl clean and full | diet"_qs,
                  u"Waste spot-cleaned | substrate"_qs,
                  u"Enclosure meets the minimum size | enclosure"_qs,
              }));
}

TEST(ChecklistTemplate, OfAmphibians) {
    EXPECT_EQ(lines(SpeciesGroup::Amphibian),
              QStringList({
                  u"Water dechlorinated and clean (test kit if aquatic) | humidity"_qs,
                  u"Temperature checked | temperature"_qs,
                  u"Humidity or water quality in range | humidity"_qs,
                  u"Lighting/UVB as the care sheet says | lighting"_qs,
                  u"Hides and plants in place | hides"_qs,
                  u"Substrate safe and damp (not waterlogged) where needed | substrate"_qs,
                  u"Leftover food removed | schedule"_qs,
                  u"Enclosure meets the minimum size | enclosure"_qs,
              }));
}

TEST(ChecklistTemplate, OfBirds) {
    EXPECT_EQ(lines(SpeciesGroup::Bird),
              QStringList({
                  u"Cage as large as possible; zinc-free | enclosure"_qs,
                  u"Natural perches of different widths | hides"_qs,
                  u"No non-stick (PTFE) fumes, smoke or aerosols near the bird | avoid"_qs,
                  u"UV bird lamp working | lighting"_qs,
                  u"Pellets, vegetables and fresh water | diet"_qs,
                  u"Cage papers changed; droppings look normal | normal"_qs,
                  u"Toys rotated; daily flight time in a safe room | enrichment"_qs,
                  u"Weighed (grams) this week | warning"_qs,
              }));
}

TEST(ChecklistTemplate, OfInvertebrates) {
    EXPECT_EQ(lines(SpeciesGroup::Invertebrate), QStringList({
                                                     u"Humidity checked | humidity"_qs,
                                                     u"Temperature checked | temperature"_qs,
                                                     u"Shallow water dish clean | diet"_qs,
                                                     u"Hide in place; substrate deep enough | substrate"_qs,
                                                     u"Lid secure and ventilated | enclosure"_qs,
                                                     u"Uneaten live food removed | avoid"_qs,
                                                     u"Spare shells available (hermit crabs) | hides"_qs,
                                                 }));
}

TEST(Gist, PutsASectionOnOneLine) {
    const QList<std::pair<QString, QString>> cases = {
        {u""_qs, u""_qs},
        {u"One line"_qs, u"One line"_qs},
        {u"  \t One  line • with  blanks \u00A0"_qs, u"One  line • with  blanks"_qs},
        {u"Warm end:\n• 30 °C\n• Cool end 22 °C"_qs, u"Warm end: 30 °C · Cool end 22 °C"_qs},
        {u"• One\n\n  \n• Two\n"_qs, u"One · Two"_qs},
        {u"• One\n•\n • \n• Two"_qs, u"One · Two"_qs},
        {u"•"_qs, u""_qs},
        {u"•• • Deep • ••"_qs, u"Deep"_qs},
        {u"First\nLast:"_qs, u"First · Last:"_qs},
        {u"Only:"_qs, u"Only:"_qs},
        {u"A:\nB:\nC"_qs, u"A: B: C"_qs},
        {u"A: \u2022\nB"_qs, u"A: B"_qs},
        {u"One\r\nTwo\r\n"_qs, u"One · Two"_qs},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(gist(text), expected) << text.toStdString();
}

} // namespace
} // namespace ormiva
