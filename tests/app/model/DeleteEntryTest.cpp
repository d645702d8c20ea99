#include "DeleteEntry.h"

#include "MadeStore.h"

namespace ormiva {
namespace {

using namespace ormiva::testing;

TEST(DeleteEntry, DeletesTheRowOnceItIsConfirmed) {
    MadeStore made;
    AppModel model;
    const Pet pet = made.addPet();
    WeightEntry entry;
    entry.petID = pet.id;
    entry.grams = 10;
    made.store.save(entry);

    deleteEntry<WeightEntry>(model, made.store, entry.id, u"this weight"_qs);
    ASSERT_TRUE(model.confirm());
    EXPECT_EQ(model.confirm()->title, u"Delete this weight?"_qs);
    EXPECT_EQ(model.confirm()->message,
              u"This can't be undone (a backup made earlier can bring it back)."_qs);
    model.answerConfirm(false);
    EXPECT_EQ(made.store.weights(pet.id).size(), 1);

    deleteEntry<WeightEntry>(model, made.store, entry.id, u"this weight"_qs);
    model.answerConfirm(true);
    EXPECT_EQ(made.store.weights(pet.id).size(), 0);
    EXPECT_EQ(model.message(), std::nullopt);
}

TEST(DeleteEntry, TellsAFailure) {
    MadeStore made;
    AppModel model;
    deleteEntry<Pet>(model, made.store, 1, u"Rex"_qs);
    made.store.db().close();
    model.answerConfirm(true);
    EXPECT_EQ(model.message(), u"The database reported a problem: closed"_qs);
}

} // namespace
} // namespace ormiva
