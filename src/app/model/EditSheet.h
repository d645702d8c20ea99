#pragma once

#include "LogEntries.h"
#include "Pet.h"
#include "Reminder.h"
#include "VetRecords.h"

#include <variant>

namespace ormiva {

/// The record that an editor is open on.
using EditSheet = std::variant<Pet, WeightEntry, FeedingEntry, ShedEntry, VetVisit, Medication, Reminder>;

/// The letter of the record's kind and its id, as in "w12", or "w0" for a new entry. Another identity opens
/// the sheet anew.
QString identity(const EditSheet& sheet);
/// The record for QML, as its gadget.
QVariant recordOf(const EditSheet& sheet);

} // namespace ormiva
