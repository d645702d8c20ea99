#include "MenuCommands.h"

#include "AppModel.h"
#include "FixedCalendar.h"
#include "MadeStore.h"
#include "ScriptedPanels.h"

namespace ormiva {
namespace {

using namespace ormiva::testing;

class MenuCommand : public ::testing::Test {
protected:
    template <typename T>
    T edited() const {
        EXPECT_TRUE(model.sheet() && std::holds_alternative<T>(*model.sheet()));
        return model.sheet() && std::holds_alternative<T>(*model.sheet()) ? std::get<T>(*model.sheet()) : T();
    }

    FixedCalendar calendar{utc(2026, 11, 21)};
    MadeStore made;
    AppModel model;
    ScriptedPanels panels;
};

TEST_F(MenuCommand, ActsOnTheSelectedPetElseOnTheFirst) {
    EXPECT_EQ(MenuCommands::petOf(model, made.store), std::nullopt);
    const Pet zoe = made.addPet(u"zoe"_qs);
    const Pet abe = made.addPet(u"Abe"_qs);
    made.addPet(u"Mia"_qs);
    EXPECT_EQ(MenuCommands::petOf(model, made.store), abe);
    model.setPetID(zoe.id);
    EXPECT_EQ(MenuCommands::petOf(model, made.store), zoe);
    made.store.remove<Pet>(zoe.id);
    EXPECT_EQ(MenuCommands::petOf(model, made.store), abe);
}

TEST_F(MenuCommand, MakesANewPet) {
    MenuCommands::newPet(model, &made.store);
    EXPECT_EQ(edited<Pet>(), Pet());
}

TEST_F(MenuCommand, LogsAWeightOfThePet) {
    const Pet pet = made.addPet(u"Abe"_qs);
    MenuCommands::logWeight(model, &made.store);
    WeightEntry expected;
    expected.petID = pet.id;
    expected.day = OMDay{2026, 11, 21};
    EXPECT_EQ(edited<WeightEntry>(), expected);
    EXPECT_EQ(edited<WeightEntry>().grams, 0);
}

TEST_F(MenuCommand, LogsAMealOfThePet) {
    const Pet pet = made.addPet(u"Abe"_qs);
    MenuCommands::logMeal(model, &made.store);
    FeedingEntry expected;
    expected.petID = pet.id;
    expected.day = OMDay{2026, 11, 21};
    EXPECT_EQ(edited<FeedingEntry>(), expected);
    EXPECT_TRUE(edited<FeedingEntry>().ate);
}

TEST_F(MenuCommand, WithoutPetsLeadsAWeightToANewPetAndAMealNowhere) {
    MenuCommands::logMeal(model, &made.store);
    EXPECT_FALSE(model.sheet());
    MenuCommands::logWeight(model, &made.store);
    EXPECT_EQ(edited<Pet>(), Pet());
}

TEST_F(MenuCommand, MakesAReminderOfThePetOrOfNone) {
    MenuCommands::newReminder(model, &made.store);
    EXPECT_EQ(edited<Reminder>(), Reminder());
    const Pet pet = made.addPet(u"Abe"_qs);
    MenuCommands::newReminder(model, &made.store);
    Reminder expected;
    expected.petID = pet.id;
    EXPECT_EQ(edited<Reminder>(), expected);
}

TEST_F(MenuCommand, BacksUpFromTheSettings) {
    MenuCommands::backUpNow(model, &made.store, panels);
    EXPECT_EQ(model.screen(), Screen::Settings);
    EXPECT_EQ(panels.asked.size(), 1);
}

TEST_F(MenuCommand, WithoutAStoreDoesNothing) {
    MenuCommands::newPet(model, nullptr);
    MenuCommands::logWeight(model, nullptr);
    MenuCommands::logMeal(model, nullptr);
    MenuCommands::newReminder(model, nullptr);
    MenuCommands::backUpNow(model, nullptr, panels);
    EXPECT_FALSE(model.sheet());
    EXPECT_EQ(model.screen(), Screen::Home);
    EXPECT_EQ(panels.asked, QStringList());
}

} // namespace
} // namespace ormiva
