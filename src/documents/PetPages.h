#pragma once

#include "OMStore.h"
#include "PDFFlow.h"

/// What the documents on a pet have in common.
namespace ormiva::PetPages {

/// How far below the top of the page the picture reaches, with some air.
constexpr double photoRoom = 118;

/// Puts the pet's photo, if there is one, at the right of the cursor's height.
void photo(PDFFlow& flow, const Pet& pet);

/// A section's heading that stays with the first `follows` points of what comes: a table's band and a row.
void section(PDFFlow& flow, const QString& title, double follows = 36);

/// The common name, or the id of a species that the library doesn't hold.
QString speciesName(const Pet& pet, const std::optional<Species>& species);
/// "{name}  ·  {scientific name}".
QString speciesLine(const Pet& pet, const std::optional<Species>& species);

/// "421.0".
QString grams(const WeightEntry& weight);
QList<std::pair<OMDay, double>> chartPoints(const QList<WeightEntry>& weights);
QString shedResult(const ShedEntry& shed);

/// The texts that are not empty, joined.
QString joined(QStringList texts, const QString& separator);

} // namespace ormiva::PetPages
