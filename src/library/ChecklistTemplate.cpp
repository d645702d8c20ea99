#include "ChecklistTemplate.h"

#include <algorithm>

namespace ormiva::ChecklistTemplate {

namespace {

using enum CareField;

const QList<Item>& mammalItems() {
    static const QList<Item> list = {
        {QStringLiteral("Cage meets the minimum size and is escape-proof"), Enclosure},
        {QStringLiteral("Room temperature in the safe range"), Temperature},
        {QStringLiteral("Bedding clean and dust-free"), Substrate},
        {QStringLiteral("Hide or nest box available"), Hides},
        {QStringLiteral("Fresh water — bottle or bowl working"), Diet},
        {QStringLiteral("Food portions match the care sheet"), Diet},
        {QStringLiteral("Toys safe, no loose or chewable small parts"), Enrichment},
        {QStringLiteral("Out-of-cage time / exercise done"), Handling},
        {QStringLiteral("Droppings and urine look normal"), Normal},
    };
    return list;
}

const QList<Item>& reptileItems() {
    static const QList<Item> list = {
        {QStringLiteral("Warm/basking end temperature checked with a thermometer"), Temperature},
        {QStringLiteral("Cool end and night temperature checked"), Temperature},
        {QStringLiteral("Every heater is on a thermostat and guarded (no hot rocks)"), Temperature},
        {QStringLiteral("Humidity checked with a hygrometer"), Humidity},
        {QStringLiteral("UVB lamp on its daily cycle, nothing blocking it, replacement date noted"),
         Lighting},
        {QStringLiteral("Hides at the warm and cool ends"), Hides},
        {QStringLiteral("Safe substrate; feeding off loose substrate"), Substrate},
        {QStringLiteral("Water bowl clean and full"), Diet},
        {QStringLiteral("Waste spot-cleaned"), Substrate},
        {QStringLiteral("Enclosure meets the minimum size"), Enclosure},
    };
    return list;
}

const QList<Item>& amphibianItems() {
    static const QList<Item> list = {
        {QStringLiteral("Water dechlorinated and clean (test kit if aquatic)"), Humidity},
        {QStringLiteral("Temperature checked"), Temperature},
        {QStringLiteral("Humidity or water quality in range"), Humidity},
        {QStringLiteral("Lighting/UVB as the care sheet says"), Lighting},
        {QStringLiteral("Hides and plants in place"), Hides},
        {QStringLiteral("Substrate safe and damp (not waterlogged) where needed"), Substrate},
        {QStringLiteral("Leftover food removed"), Schedule},
        {QStringLiteral("Enclosure meets the minimum size"), Enclosure},
    };
    return list;
}

const QList<Item>& birdItems() {
    static const QList<Item> list = {
        {QStringLiteral("Cage as large as possible; zinc-free"), Enclosure},
        {QStringLiteral("Natural perches of different widths"), Hides},
        {QStringLiteral("No non-stick (PTFE) fumes, smoke or aerosols near the bird"), Avoid},
        {QStringLiteral("UV bird lamp working"), Lighting},
        {QStringLiteral("Pellets, vegetables and fresh water"), Diet},
        {QStringLiteral("Cage papers changed; droppings look normal"), Normal},
        {QStringLiteral("Toys rotated; daily flight time in a safe room"), Enrichment},
        {QStringLiteral("Weighed (grams) this week"), Warning},
    };
    return list;
}

const QList<Item>& invertebrateItems() {
    static const QList<Item> list = {
        {QStringLiteral("Humidity checked"), Humidity},
        {QStringLiteral("Temperature checked"), Temperature},
        {QStringLiteral("Shallow water dish clean"), Diet},
        {QStringLiteral("Hide in place; substrate deep enough"), Substrate},
        {QStringLiteral("Lid secure and ventilated"), Enclosure},
        {QStringLiteral("Uneaten live food removed"), Avoid},
        {QStringLiteral("Spare shells available (hermit crabs)"), Hides},
    };
    return list;
}

bool isTrimmed(QChar character) {
    return character.isSpace() || character == u'•';
}

QStringView trimmed(QStringView line) {
    const auto first = std::ranges::find_if_not(line, isTrimmed);
    const auto last = std::find_if_not(line.rbegin(), std::make_reverse_iterator(first), isTrimmed).base();
    return {first, last};
}

} // namespace

const QList<Item>& items(const Species& species) {
    switch (species.group) {
    case SpeciesGroup::Mammal:
        return mammalItems();
    case SpeciesGroup::Reptile:
        return reptileItems();
    case SpeciesGroup::Amphibian:
        return amphibianItems();
    case SpeciesGroup::Bird:
        return birdItems();
    case SpeciesGroup::Invertebrate:
        return invertebrateItems();
    }
    Q_UNREACHABLE();
}

QString gist(const QString& text) {
    QString line;
    for (const QStringView part : QStringView(text).split(u'\n')) {
        const QStringView words = trimmed(part);
        if (words.isEmpty())
            continue;
        if (!line.isEmpty())
            line += line.endsWith(u':') ? QStringLiteral(" ") : QStringLiteral(" · ");
        line += words;
    }
    return line;
}

} // namespace ormiva::ChecklistTemplate
