#include "CareField.h"

namespace ormiva {

namespace {

CareFieldInfo entry(CareField field, const char16_t* id, const char16_t* title, const char16_t* symbol) {
    return {field, QString::fromUtf16(id), QString::fromUtf16(title), QString::fromUtf16(symbol)};
}

} // namespace

const std::array<CareFieldInfo, 22>& allCareFields() {
    using enum CareField;
    static const std::array<CareFieldInfo, 22> table = {{
        entry(Lifespan, u"lifespan", u"Lifespan", u"hourglass"),
        entry(Size, u"size", u"Adult size", u"ruler"),
        entry(Enclosure, u"enclosure", u"Enclosure & minimum size", u"square.3.layers.3d"),
        entry(Substrate, u"substrate", u"Substrate & bedding", u"square.stack.3d.down.forward"),
        entry(Hides, u"hides", u"Hides & furnishings", u"house.fill"),
        entry(Temperature, u"temperature", u"Temperature", u"thermometer.medium"),
        entry(Humidity, u"humidity", u"Humidity & water quality", u"humidity.fill"),
        entry(Lighting, u"lighting", u"Lighting & UVB", u"sun.max.fill"),
        entry(Diet, u"diet", u"Diet — staples", u"leaf.fill"),
        entry(Treats, u"treats", u"Treats", u"star.fill"),
        entry(Avoid, u"avoid", u"Toxic or avoid", u"nosign"),
        entry(Schedule, u"schedule", u"Feeding schedule", u"clock.fill"),
        entry(Handling, u"handling", u"Handling & behavior", u"hand.raised.fill"),
        entry(Enrichment, u"enrichment", u"Enrichment", u"puzzlepiece.fill"),
        entry(Grooming, u"grooming", u"Grooming, shedding & molting", u"sparkles"),
        entry(Normal, u"normal", u"Normal signs", u"checkmark.seal.fill"),
        entry(Warning, u"warning", u"Warning signs", u"exclamationmark.triangle.fill"),
        entry(Illnesses, u"illnesses", u"Common illnesses", u"cross.case.fill"),
        entry(RedFlags, u"redFlags", u"See an exotic vet NOW", u"staroflife.fill"),
        entry(NotEating, u"notEating", u"Not eating", u"fork.knife"),
        entry(FoodChange, u"foodChange", u"Changing foods", u"arrow.triangle.swap"),
        entry(Legal, u"legal", u"Legal notes", u"building.columns.fill"),
    }};
    return table;
}

const CareFieldInfo& info(CareField field) {
    return allCareFields().at(static_cast<std::size_t>(field));
}

const QList<CareSection>& careSections() {
    using enum CareField;
    static const QList<CareSection> sections = {
        {QStringLiteral("At a glance"), {Lifespan, Size, Legal}},
        {QStringLiteral("Habitat"), {Enclosure, Substrate, Hides, Temperature, Humidity, Lighting}},
        {QStringLiteral("Food"), {Diet, Treats, Avoid, Schedule, NotEating, FoodChange}},
        {QStringLiteral("Daily life"), {Handling, Enrichment, Grooming}},
        {QStringLiteral("Health"), {Normal, Warning, Illnesses, RedFlags}},
    };
    return sections;
}

} // namespace ormiva
