#include "PetExports.h"

#include "AppModel.h"
#include "CareSheetPDF.h"
#include "DocumentReader.h"
#include "MadePets.h"
#include "OMCSV.h"
#include "PetPDF.h"
#include "ScriptedPanels.h"

namespace ormiva {
namespace {

using namespace ormiva::testing;

class Exports : public DocumentTest {
protected:
    TemporaryFolder elsewhere;
    AppModel model;
    ScriptedPanels panels;
};

TEST_F(Exports, AreOfTheOpenPetElseOfTheFirst) {
    EXPECT_EQ(PetExports::currentPet(model, nullptr), std::nullopt);
    EXPECT_EQ(PetExports::currentPet(model, &made.store), std::nullopt);
    const Pet zoe = addPet(u"zoe"_qs, u"rabbit"_qs);
    const Pet abe = addPet(u"Abe"_qs, u"rabbit"_qs);
    EXPECT_EQ(PetExports::currentPet(model, &made.store), abe);
    model.setPetID(zoe.id);
    EXPECT_EQ(PetExports::currentPet(model, &made.store), zoe);
    made.store.remove<Pet>(zoe.id);
    EXPECT_EQ(PetExports::currentPet(model, &made.store), abe);
}

TEST_F(Exports, WithoutAPetSayWhatToDoFirst) {
    for (OMStore* store : {&made.store, static_cast<OMStore*>(nullptr)}) {
        PetExports::careSheetForCurrentPet(model, store, panels);
        EXPECT_EQ(model.message(), u"Add a pet first (My Pets → Add), then export its care sheet."_qs);
        PetExports::recordsForCurrentPet(model, store, panels);
        EXPECT_EQ(model.message(), u"Add a pet first (My Pets → Add), then export its records."_qs);
    }
    EXPECT_EQ(panels.asked, QStringList());
}

TEST_F(Exports, WriteTheDocuments) {
    const Pet pet = addPet(u"Ziggy"_qs, u"bearded-dragon"_qs);
    panels.answer = elsewhere.file(u"out"_qs);
    PetExports::careSheetForCurrentPet(model, &made.store, panels);
    EXPECT_EQ(elsewhere.read(u"out"_qs), CareSheetPDF::make(pet, made.store, UserCalendar::now()));
    PetExports::recordsForCurrentPet(model, &made.store, panels);
    EXPECT_EQ(elsewhere.read(u"out"_qs), PetPDF::make(pet, made.store));
    PetExports::recordsAsCSV(pet, model, made.store, panels);
    EXPECT_EQ(elsewhere.read(u"out"_qs), OMCSV::petRecords(pet, made.store).toUtf8());
    EXPECT_EQ(panels.asked, QStringList({u"save Ziggy - care sheet.pdf .pdf"_qs,
                                         u"save Ziggy - records for the vet.pdf .pdf"_qs,
                                         u"save Ziggy - records.csv .csv"_qs}));
    EXPECT_EQ(panels.revealed, QStringList({*panels.answer, *panels.answer, *panels.answer}));
    EXPECT_EQ(model.message(), std::nullopt);
}

TEST_F(Exports, TellAFailureAndShowNoFile) {
    addPet(u"Ziggy"_qs, u"bearded-dragon"_qs);
    panels.answer = elsewhere.file(u"none/out.pdf"_qs);
    PetExports::recordsForCurrentPet(model, &made.store, panels);
    ASSERT_TRUE(model.message());
    EXPECT_TRUE(model.message()->startsWith(u"The file could not be saved: "));
    EXPECT_EQ(panels.revealed, QStringList());
}

TEST_F(Exports, SayNothingWhenCancelled) {
    addPet(u"Ziggy"_qs, u"bearded-dragon"_qs);
    PetExports::careSheetForCurrentPet(model, &made.store, panels);
    EXPECT_EQ(model.message(), std::nullopt);
    EXPECT_EQ(panels.revealed, QStringList());
}

} // namespace
} // namespace ormiva
