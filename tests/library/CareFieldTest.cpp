#include "CareField.h"

#include "Printers.h"

#include <QSet>

#include <tuple>

namespace ormiva {
namespace {

TEST(CareField, HasItsTableInDeclaredOrder) {
    using Row = std::tuple<int, QString, QString, QString>;
    const QList<Row> expected = {
        {0, u"lifespan"_qs, u"Lifespan"_qs, u"hourglass"_qs},
        {1, u"size"_qs, u"Adult size"_qs, u"ruler"_qs},
        {2, u"enclosure"_qs, u"Enclosure & minimum size"_qs, u"square.3.layers.3d"_qs},
        {3, u"substrate"_qs, u"Substrate & bedding"_qs, u"square.stack.3d.down.forward"_qs},
        {4, u"hides"_qs, u"Hides & furnishings"_qs, u"house.fill"_qs},
        {5, u"temperature"_qs, u"Temperature"_qs, u"thermometer.medium"_qs},
        {6, u"humidity"_qs, u"Humidity & water quality"_qs, u"humidity.fill"_qs},
        {7, u"lighting"_qs, u"Lighting & UVB"_qs, u"sun.max.fill"_qs},
        {8, u"diet"_qs, u"Diet — staples"_qs, u"leaf.fill"_qs},
        {9, u"treats"_qs, u"Treats"_qs, u"star.fill"_qs},
        {10, u"avoid"_qs, u"Toxic or avoid"_qs, u"nosign"_qs},
        {11, u"schedule"_qs, u"Feeding schedule"_qs, u"clock.fill"_qs},
        {12, u"handling"_qs, u"Handling & behavior"_qs, u"hand.raised.fill"_qs},
        {13, u"enrichment"_qs, u"Enrichment"_qs, u"puzzlepiece.fill"_qs},
        {14, u"grooming"_qs, u"Grooming, shedding & molting"_qs, u"sparkles"_qs},
        {15, u"normal"_qs, u"Normal signs"_qs, u"checkmark.seal.fill"_qs},
        {16, u"warning"_qs, u"Warning signs"_qs, u"exclamationmark.triangle.fill"_qs},
        {17, u"illnesses"_qs, u"Common illnesses"_qs, u"cross.case.fill"_qs},
        {18, u"redFlags"_qs, u"See an exotic vet NOW"_qs, u"staroflife.fill"_qs},
        {19, u"notEating"_qs, u"Not eating"_qs, u"fork.knife"_qs},
        {20, u"foodChange"_qs, u"Changing foods"_qs, u"arrow.triangle.swap"_qs},
        {21, u"legal"_qs, u"Legal notes"_qs, u"building.columns.fill"_qs},
    };
    QList<Row> rows;
    for (const CareFieldInfo& entry : allCareFields())
        rows.append({static_cast<int>(entry.field), entry.id, entry.title, entry.symbol});
    EXPECT_EQ(rows, expected);
}

TEST(CareField, IsDescribedByItsOwnRow) {
    for (const CareFieldInfo& entry : allCareFields())
        EXPECT_EQ(info(entry.field).id, entry.id);
}

TEST(CareSections, ListTheSheetInReadingOrder) {
    using enum CareField;
    using Row = std::pair<QString, QList<CareField>>;
    const QList<Row> expected = {
        {u"At a glance"_qs, {Lifespan, Size, Legal}},
        {u"Habitat"_qs, {Enclosure, Substrate, Hides, Temperature, Humidity, Lighting}},
        {u"Food"_qs, {Diet, Treats, Avoid, Schedule, NotEating, FoodChange}},
        {u"Daily life"_qs, {Handling, Enrichment, Grooming}},
        {u"Health"_qs, {Normal, Warning, Illnesses, RedFlags}},
    };
    QList<Row> rows;
    QList<CareField> shown;
    for (const CareSection& section : careSections()) {
        rows.append({section.title, section.fields});
        shown += section.fields;
    }
    EXPECT_EQ(rows, expected);
    EXPECT_EQ(shown.size(), 22);
    EXPECT_EQ(QSet<CareField>(shown.begin(), shown.end()).size(), 22);
}

} // namespace
} // namespace ormiva
