#pragma once

#include "SourceRef.h"
#include "Species.h"
#include "SymptomData.h"

/// The content files, from JSON to values. All throw JsonFormatError for a file that isn't of the required
/// form.
namespace ormiva::ContentFiles {

Species readSpecies(const QByteArray& json);
SourceFile readSources(const QByteArray& json);
SymptomFile readSymptoms(const QByteArray& json);

} // namespace ormiva::ContentFiles
