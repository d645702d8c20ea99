#include "SpeciesGroup.h"

#include "Printers.h"

#include <QList>

#include <tuple>

namespace ormiva {
namespace {

TEST(SpeciesGroup, HasItsTableInTheOrderOfTheLibrary) {
    using Row = std::tuple<SpeciesGroup, QString, QString, QString>;
    const QList<Row> expected = {
        {SpeciesGroup::Mammal, u"mammal"_qs, u"Mammals"_qs, u"pawprint.fill"_qs},
        {SpeciesGroup::Reptile, u"reptile"_qs, u"Reptiles"_qs, u"lizard.fill"_qs},
        {SpeciesGroup::Amphibian, u"amphibian"_qs, u"Amphibians"_qs, u"drop.fill"_qs},
        {SpeciesGroup::Bird, u"bird"_qs, u"Birds"_qs, u"bird.fill"_qs},
        {SpeciesGroup::Invertebrate, u"invertebrate"_qs, u"Invertebrates"_qs, u"ant.fill"_qs},
    };
    QList<Row> rows;
    for (const SpeciesGroupInfo& entry : allSpeciesGroups())
        rows.append({entry.group, entry.id, entry.title, entry.symbol});
    EXPECT_EQ(rows, expected);
}

TEST(SpeciesGroup, IsFoundByItsRawValue) {
    for (const SpeciesGroupInfo& entry : allSpeciesGroups()) {
        EXPECT_EQ(speciesGroup(entry.id), entry.group);
        EXPECT_EQ(info(entry.group).id, entry.id);
    }
    for (const QString& id : {u"fish"_qs, u"Mammal"_qs, u"Mammals"_qs, u""_qs})
        EXPECT_EQ(speciesGroup(id), std::nullopt) << id.toStdString();
}

} // namespace
} // namespace ormiva
