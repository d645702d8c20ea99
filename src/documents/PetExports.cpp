#include "PetExports.h"

#include "AppModel.h"
#include "CareSheetPDF.h"
#include "FilePanels.h"
#include "MenuCommands.h"
#include "OMCSV.h"
#include "OMStore.h"
#include "PetPDF.h"

namespace ormiva::PetExports {

namespace {

FileType pdf() {
    return {QStringLiteral("PDF document"), QStringLiteral("pdf"), QStringLiteral("application/pdf")};
}

FileType csv() {
    return {QStringLiteral("Comma-separated text"), QStringLiteral("csv"), QStringLiteral("text/csv")};
}

} // namespace

std::optional<Pet> currentPet(const AppModel& model, OMStore* store) {
    return store ? MenuCommands::petOf(model, *store) : std::nullopt;
}

void careSheetForCurrentPet(AppModel& model, OMStore* store, FilePanels& panels) {
    if (const auto pet = currentPet(model, store))
        careSheet(*pet, model, *store, panels);
    else
        model.setMessage(QStringLiteral("Add a pet first (My Pets → Add), then export its care sheet."));
}

void recordsForCurrentPet(AppModel& model, OMStore* store, FilePanels& panels) {
    if (const auto pet = currentPet(model, store))
        records(*pet, model, *store, panels);
    else
        model.setMessage(QStringLiteral("Add a pet first (My Pets → Add), then export its records."));
}

void careSheet(const Pet& pet, AppModel& model, OMStore& store, FilePanels& panels) {
    panels.exportData(CareSheetPDF::make(pet, store, UserCalendar::now()), CareSheetPDF::fileName(pet), pdf(),
                      model, store);
}

void records(const Pet& pet, AppModel& model, OMStore& store, FilePanels& panels) {
    panels.exportData(PetPDF::make(pet, store), PetPDF::fileName(pet), pdf(), model, store);
}

void recordsAsCSV(const Pet& pet, AppModel& model, OMStore& store, FilePanels& panels) {
    panels.exportData(OMCSV::petRecords(pet, store).toUtf8(), OMCSV::fileName(pet), csv(), model, store);
}

} // namespace ormiva::PetExports
