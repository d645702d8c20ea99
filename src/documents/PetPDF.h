#pragma once

#include "OMStore.h"

#include <QByteArray>

/// One pet's whole record as a document for the vet: everything that was logged, and no advice.
namespace ormiva::PetPDF {

/// The finished document. Never fails: what can't be read prints as empty.
QByteArray make(const Pet& pet, OMStore& store);

/// "{name} - records for the vet.pdf".
QString fileName(const Pet& pet);

} // namespace ormiva::PetPDF
