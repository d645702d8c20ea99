#pragma once

#include "Pet.h"

#include <optional>

namespace ormiva {

class AppModel;
class FilePanels;
class OMStore;

/// What the items of the menus do. Without a store (null) they do nothing.
namespace MenuCommands {

/// The pet that a command acts on: the selected one, else the first by name. A selected pet that is no longer
/// there counts as none.
std::optional<Pet> petOf(const AppModel& model, OMStore& store);

void newPet(AppModel& model, OMStore* store);
/// With no pets at all it leads to making one.
void logWeight(AppModel& model, OMStore* store);
/// With no pets nothing happens.
void logMeal(AppModel& model, OMStore* store);
void newReminder(AppModel& model, OMStore* store);
void backUpNow(AppModel& model, OMStore* store, FilePanels& panels);

} // namespace MenuCommands
} // namespace ormiva
