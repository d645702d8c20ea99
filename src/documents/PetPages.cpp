#include "PetPages.h"

#include "Numbers.h"

#include <algorithm>
#include <cmath>

namespace ormiva::PetPages {

void photo(PDFFlow& flow, const Pet& pet) {
    if (!pet.photo)
        return;
    const QRectF place(450, flow.y, 120, 110);
    flow.image(*pet.photo, place);
    flow.keepClear(place);
}

void section(PDFFlow& flow, const QString& title, double follows) {
    constexpr double headingHeight = 33;
    flow.need(std::min(headingHeight + follows, PDFFlow::bottom - PDFFlow::margin));
    flow.heading(title);
}

QString speciesName(const Pet& pet, const std::optional<Species>& species) {
    return species ? species->name : pet.speciesID;
}

QString speciesLine(const Pet& pet, const std::optional<Species>& species) {
    return speciesName(pet, species) + QStringLiteral("  ·  ") + (species ? species->scientific : QString());
}

QString grams(const WeightEntry& weight) {
    return Numbers::fixed(weight.grams, 1);
}

QList<std::pair<OMDay, double>> chartPoints(const QList<WeightEntry>& weights) {
    QList<std::pair<OMDay, double>> points;
    constexpr double absurd = 1e12; // What only a damaged row can hold would flatten or break the chart.
    for (const WeightEntry& weight : weights)
        if (std::abs(weight.grams) < absurd)
            points.append({weight.day, weight.grams});
    return points;
}

QString shedResult(const ShedEntry& shed) {
    return shed.complete ? QStringLiteral("Complete") : QStringLiteral("Incomplete / stuck");
}

QString joined(QStringList texts, const QString& separator) {
    texts.removeAll(QString());
    return texts.join(separator);
}

} // namespace ormiva::PetPages
