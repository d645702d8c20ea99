#pragma once

#include "Pet.h"

#include <optional>

namespace ormiva {

class AppModel;
class FilePanels;
class OMStore;

/// Exports of the pet on screen, or of the first one: made, then saved where the user says and shown there.
/// Without a pet, or without a store (null), a message says what to do first.
namespace PetExports {

/// The open pet if the store has it, else the first by name.
std::optional<Pet> currentPet(const AppModel& model, OMStore* store);

void careSheetForCurrentPet(AppModel& model, OMStore* store, FilePanels& panels);
void recordsForCurrentPet(AppModel& model, OMStore* store, FilePanels& panels);

/// The same for one pet.
void careSheet(const Pet& pet, AppModel& model, OMStore& store, FilePanels& panels);
void records(const Pet& pet, AppModel& model, OMStore& store, FilePanels& panels);
void recordsAsCSV(const Pet& pet, AppModel& model, OMStore& store, FilePanels& panels);

} // namespace PetExports
} // namespace ormiva
