#include "MenuCommands.h"

#include "AppModel.h"
#include "BackupCommands.h"
#include "OMStore.h"

namespace ormiva::MenuCommands {

std::optional<Pet> petOf(const AppModel& model, OMStore& store) {
    if (model.petID())
        if (const auto selected = store.pet(*model.petID()))
            return selected;
    const QList<Pet> pets = store.pets();
    return pets.isEmpty() ? std::nullopt : std::optional(pets.first());
}

void newPet(AppModel& model, OMStore* store) {
    if (store)
        model.edit(Pet());
}

void logWeight(AppModel& model, OMStore* store) {
    if (!store)
        return;
    const auto pet = petOf(model, *store);
    if (!pet)
        return model.edit(Pet());
    WeightEntry entry;
    entry.petID = pet->id;
    model.edit(entry);
}

void logMeal(AppModel& model, OMStore* store) {
    const auto pet = store ? petOf(model, *store) : std::nullopt;
    if (!pet)
        return;
    FeedingEntry entry;
    entry.petID = pet->id;
    model.edit(entry);
}

void newReminder(AppModel& model, OMStore* store) {
    if (!store)
        return;
    Reminder reminder;
    if (const auto pet = petOf(model, *store))
        reminder.petID = pet->id;
    model.edit(reminder);
}

void backUpNow(AppModel& model, OMStore* store, FilePanels& panels) {
    if (!store)
        return;
    model.setScreen(Screen::Settings);
    BackupCommands::backUpNow(model, *store, panels);
}

} // namespace ormiva::MenuCommands
