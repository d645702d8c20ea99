#include "Commands.h"

#include "AppModel.h"
#include "FilePanels.h"
#include "MenuCommands.h"
#include "OMStore.h"
#include "PetExports.h"

namespace ormiva {

bool Commands::hasStore() const {
    return OMStore::shared() != nullptr;
}

void Commands::newPet() const {
    MenuCommands::newPet(AppModel::shared(), OMStore::shared());
}
void Commands::logWeight() const {
    MenuCommands::logWeight(AppModel::shared(), OMStore::shared());
}
void Commands::logMeal() const {
    MenuCommands::logMeal(AppModel::shared(), OMStore::shared());
}
void Commands::newReminder() const {
    MenuCommands::newReminder(AppModel::shared(), OMStore::shared());
}

void Commands::exportCareSheet() const {
    if (FilePanels* panels = FilePanels::shared())
        PetExports::careSheetForCurrentPet(AppModel::shared(), OMStore::shared(), *panels);
}
void Commands::exportRecords() const {
    if (FilePanels* panels = FilePanels::shared())
        PetExports::recordsForCurrentPet(AppModel::shared(), OMStore::shared(), *panels);
}
void Commands::backUpNow() const {
    if (FilePanels* panels = FilePanels::shared())
        MenuCommands::backUpNow(AppModel::shared(), OMStore::shared(), *panels);
}

} // namespace ormiva
