#pragma once

#include "SourceRef.h"
#include "Species.h"
#include "SymptomData.h"

/// The content files, from JSON to values. All throw JsonFormatError for a file that isn't of the required
/// form.
namespace ormiva::ContentFiles {

Species readSpecies(const QByteArray& bytes);
SourceFile readSources(const QByteArray& bytes);
SymptomFile readSymptoms(const QByteArray& bytes);

} // namespace ormiva::ContentFiles
