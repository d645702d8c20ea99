#include "AppModel.h"

#include "OMError.h"
#include "OMStore.h"
#include "Printers.h"
#include "TemporaryFolder.h"

#include <stdexcept>

namespace ormiva {
namespace {

const QString warning = QStringLiteral("This can't be undone (a backup made earlier can bring it back).");

TEST(AppModel, StartsOnHomeWithNothingSelected) {
    const AppModel model;
    EXPECT_EQ(model.screen(), Screen::Home);
    EXPECT_FALSE(model.sheet().has_value());
    EXPECT_FALSE(model.confirm().has_value());
    EXPECT_EQ(model.message(), std::nullopt);
    EXPECT_EQ(model.speciesID(), std::nullopt);
    EXPECT_EQ(model.petID(), std::nullopt);
    EXPECT_EQ(model.checkerSpeciesID(), std::nullopt);
    EXPECT_EQ(model.checkerSymptoms(), QSet<QString>());
}

TEST(AppModel, HasOneSharedInstance) {
    EXPECT_EQ(&AppModel::shared(), &AppModel::shared());
}

TEST(AppModelAct, GivesTrueAndLeavesTheMessageWhenTheBodyFinishes) {
    AppModel model;
    model.setMessage(u"Restored."_qs);
    int runs = 0;
    EXPECT_TRUE(model.act([&] { ++runs; }));
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(model.message(), u"Restored."_qs);
}

TEST(AppModelAct, TellsWhyARecordWasRefused) {
    const testing::TemporaryFolder folder;
    OMStore store(folder.file(u"Pets.sqlite"_qs));
    AppModel model;
    EXPECT_FALSE(model.act([&] {
        Pet pet;
        store.save(pet);
    }));
    EXPECT_EQ(model.message(), u"Please give your pet a name."_qs);
}

TEST(AppModelAct, TellsEachKindOfError) {
    const QList<std::pair<std::function<void()>, QString>> cases = {
        {[] { throw OMError::database(u"disk I/O error"_qs); },
         u"The database reported a problem: disk I/O error"_qs},
        {[] { throw OMError::badBackup(u"it is empty."_qs); },
         u"This file can't be restored: it is empty."_qs},
        {[] { throw OMError::notFound(); }, u"That record no longer exists."_qs},
        {[] { throw FileError(u"Could not open “x”: No space left."_qs); },
         u"Could not open “x”: No space left."_qs},
        {[] { throw std::runtime_error("out of luck"); }, u"out of luck"_qs},
    };
    for (const auto& [body, sentence] : cases) {
        AppModel model;
        EXPECT_FALSE(model.act(body));
        EXPECT_EQ(model.message(), sentence);
    }
}

TEST(AppModelAct, LetsNothingEscape) {
    AppModel model;
    EXPECT_FALSE(model.act([] { throw 42; }));
    ASSERT_TRUE(model.message().has_value());
    EXPECT_FALSE(model.message()->isEmpty());
}

TEST(AppModelAct, ReplacesAWaitingMessage) {
    AppModel model;
    model.setMessage(u"the first"_qs);
    EXPECT_FALSE(model.act([] { throw OMError::notFound(); }));
    EXPECT_EQ(model.message(), u"That record no longer exists."_qs);
}

TEST(AppModel, ClearsADismissedMessage) {
    AppModel model;
    model.setMessage(u"Restored."_qs);
    model.dismissMessage();
    EXPECT_EQ(model.message(), std::nullopt);
}

TEST(AppModelAskDelete, AsksWithTheWarningAlone) {
    AppModel model;
    model.askDelete(u"this weight"_qs, QString(), [] {});
    ASSERT_TRUE(model.confirm().has_value());
    EXPECT_EQ(model.confirm()->title, u"Delete this weight?"_qs);
    EXPECT_EQ(model.confirm()->message, warning);
    EXPECT_EQ(model.confirm()->button, u"Delete"_qs);
}

TEST(AppModelAskDelete, PutsTheDetailAheadOfTheWarning) {
    AppModel model;
    model.askDelete(u"Gex %1"_qs, u"All records go too."_qs, [] {});
    ASSERT_TRUE(model.confirm().has_value());
    EXPECT_EQ(model.confirm()->title, u"Delete Gex %1?"_qs);
    EXPECT_EQ(model.confirm()->message, u"All records go too.\n\n"_qs + warning);
}

TEST(AppModelAskDelete, MakesANewRequestEachTime) {
    AppModel model;
    model.askDelete(u"x"_qs, QString(), [] {});
    const QUuid first = model.confirm()->id;
    model.askDelete(u"x"_qs, QString(), [] {});
    EXPECT_FALSE(first.isNull());
    EXPECT_NE(model.confirm()->id, first);
}

TEST(AppModelAskDelete, RunsItsActionOnlyWhenConfirmed) {
    AppModel model;
    int runs = 0;
    model.askDelete(u"x"_qs, QString(), [&] { ++runs; });
    EXPECT_EQ(runs, 0);
    model.answerConfirm(false);
    EXPECT_EQ(runs, 0);
    EXPECT_FALSE(model.confirm().has_value());
    model.askDelete(u"x"_qs, QString(), [&] { ++runs; });
    model.answerConfirm(true);
    EXPECT_EQ(runs, 1);
    EXPECT_FALSE(model.confirm().has_value());
    model.answerConfirm(true);
    EXPECT_EQ(runs, 1);
}

TEST(AppModelAskDelete, LetsItsActionAskAgain) {
    AppModel model;
    model.askDelete(u"x"_qs, QString(), [&] { model.askDelete(u"y"_qs, QString(), [] {}); });
    model.answerConfirm(true);
    ASSERT_TRUE(model.confirm().has_value());
    EXPECT_EQ(model.confirm()->title, u"Delete y?"_qs);
}

TEST(AppModel, OpensAnEditorAndClosesIt) {
    AppModel model;
    WeightEntry weight;
    weight.id = 12;
    weight.grams = 421;
    model.edit(weight);
    ASSERT_TRUE(model.sheet().has_value());
    ASSERT_TRUE(std::holds_alternative<WeightEntry>(*model.sheet()));
    EXPECT_TRUE(std::get<WeightEntry>(*model.sheet()) == weight);
    EXPECT_EQ(model.property("sheetIdentity").toString(), u"w12"_qs);
    model.closeSheet();
    EXPECT_FALSE(model.sheet().has_value());
    EXPECT_EQ(model.property("sheetIdentity").toString(), QString());
}

TEST(AppModel, OpensTheEditorOfANewPetOfASpecies) {
    AppModel model;
    model.editNewPet(u"rabbit"_qs);
    Pet expected;
    expected.speciesID = u"rabbit"_qs;
    ASSERT_TRUE(model.sheet().has_value() && std::holds_alternative<Pet>(*model.sheet()));
    EXPECT_TRUE(std::get<Pet>(*model.sheet()) == expected);
}

TEST(AppModel, OpensASpeciesAndLeavesTheCheckerAlone) {
    AppModel model;
    model.setChecker(u"ferret"_qs, {u"vomit"_qs});
    model.openSpecies(u"rabbit"_qs);
    EXPECT_EQ(model.screen(), Screen::Library);
    EXPECT_EQ(model.speciesID(), u"rabbit"_qs);
    EXPECT_EQ(model.checkerSpeciesID(), u"ferret"_qs);
    EXPECT_EQ(model.checkerSymptoms(), QSet<QString>({u"vomit"_qs}));
}

TEST(AppModel, ChoosesTheSpeciesBeforeTheScreenChanges) {
    AppModel model;
    QStringList seen;
    QObject::connect(&model, &AppModel::screenChanged, &model,
                     [&] { seen.append(model.speciesID().value_or(u"none"_qs)); });
    model.openSpecies(u"rabbit"_qs);
    EXPECT_EQ(seen, QStringList({u"rabbit"_qs}));
}

TEST(AppModel, ClearsTheTickedSignsEvenForTheSameSpecies) {
    AppModel model;
    model.setSpeciesID(u"rabbit"_qs);
    model.setChecker(u"ferret"_qs, {u"vomit"_qs, u"collapse"_qs});
    model.checkSymptoms(u"ferret"_qs);
    EXPECT_EQ(model.screen(), Screen::Symptoms);
    EXPECT_EQ(model.checkerSpeciesID(), u"ferret"_qs);
    EXPECT_EQ(model.checkerSymptoms(), QSet<QString>());
    EXPECT_EQ(model.speciesID(), u"rabbit"_qs);
}

TEST(AppModel, TellsOfEveryField) {
    AppModel model;
    QStringList told;
    const auto note = [&](const char* name) {
        return [&told, name] { told.append(QString::fromLatin1(name)); };
    };
    QObject::connect(&model, &AppModel::screenChanged, &model, note("screen"));
    QObject::connect(&model, &AppModel::sheetChanged, &model, note("sheet"));
    QObject::connect(&model, &AppModel::confirmChanged, &model, note("confirm"));
    QObject::connect(&model, &AppModel::messageChanged, &model, note("message"));
    QObject::connect(&model, &AppModel::speciesIDChanged, &model, note("species"));
    QObject::connect(&model, &AppModel::petIDChanged, &model, note("pet"));
    QObject::connect(&model, &AppModel::checkerChanged, &model, note("checker"));
    model.setScreen(Screen::Pets);
    model.edit(Pet());
    model.askDelete(u"x"_qs, QString(), [] {});
    model.setMessage(u"m"_qs);
    model.setSpeciesID(u"rabbit"_qs);
    model.setPetID(7);
    model.setChecker(u"rabbit"_qs, {});
    EXPECT_EQ(told, QStringList({u"screen"_qs, u"sheet"_qs, u"confirm"_qs, u"message"_qs, u"species"_qs,
                                 u"pet"_qs, u"checker"_qs}));
}

TEST(AppModel, OffersItsFieldsToScreensAsPlainTexts) {
    AppModel model;
    EXPECT_EQ(model.property("screen").toString(), u"home"_qs);
    EXPECT_EQ(model.property("message").toString(), QString());
    EXPECT_FALSE(model.property("confirming").toBool());
    model.setProperty("screen", u"calendar"_qs);
    EXPECT_EQ(model.screen(), Screen::Calendar);
    model.setProperty("screen", u"no such screen"_qs);
    EXPECT_EQ(model.screen(), Screen::Calendar);
    model.setProperty("speciesID", u"rabbit"_qs);
    EXPECT_EQ(model.speciesID(), u"rabbit"_qs);
    model.setProperty("speciesID", QString());
    EXPECT_EQ(model.speciesID(), std::nullopt);
    model.askDelete(u"x"_qs, QString(), [] {});
    EXPECT_TRUE(model.property("confirming").toBool());
    EXPECT_EQ(model.property("confirmTitle").toString(), u"Delete x?"_qs);
    EXPECT_EQ(model.property("confirmMessage").toString(), warning);
    EXPECT_EQ(model.property("confirmButton").toString(), u"Delete"_qs);
}

} // namespace
} // namespace ormiva
