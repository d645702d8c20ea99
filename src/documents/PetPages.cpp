#include "PetPages.h"

#include "Numbers.h"

#include <cmath>

namespace ormiva::PetPages {

void photo(PDFFlow& flow, const Pet& pet) {
    if (pet.photo)
        flow.image(*pet.photo, {450, flow.y, 120, 110});
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
