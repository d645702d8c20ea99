#include "SampleData.h"

#include "MadePets.h"
#include "ReminderPlanner.h"

namespace ormiva {
namespace {

using namespace ormiva::testing;

class Samples : public DocumentTest {
protected:
    Samples() { SampleData::add(made.store); }
    Pet pet(const QString& name) {
        for (const Pet& pet : made.store.pets())
            if (pet.name == name)
                return pet;
        ADD_FAILURE() << name.toStdString();
        return {};
    }
    const OMDay today{2026, 11, 21};
};

QList<double> gramsOf(const QList<WeightEntry>& weights) {
    QList<double> grams;
    for (const WeightEntry& weight : weights)
        grams.append(weight.grams);
    return grams;
}

TEST_F(Samples, AreThreeMarkedPets) {
    const QList<Pet> pets = made.store.pets();
    ASSERT_EQ(pets.size(), 3);
    for (const Pet& pet : pets) {
        EXPECT_TRUE(pet.name.endsWith(u" (sample)"));
        EXPECT_EQ(pet.notes, u"Sample pet"_qs);
        EXPECT_FALSE(pet.photo);
    }
    Pet ziggy = pet(u"Ziggy (sample)"_qs);
    EXPECT_EQ(ziggy.speciesID, u"bearded-dragon"_qs);
    EXPECT_EQ(ziggy.sex, u"Male"_qs);
    EXPECT_EQ(ziggy.birthday, today.adding(-700));
    EXPECT_EQ(ziggy.acquired, today.adding(-600));
    EXPECT_EQ(ziggy.markings, u"Citrus morph"_qs);
    EXPECT_EQ(ziggy.enclosure, u"120 × 60 × 60 cm vivarium, T5 UVB, basking lamp on a thermostat"_qs);
    const Pet pepper = pet(u"Pepper (sample)"_qs);
    EXPECT_EQ(pepper.speciesID, u"ferret"_qs);
    EXPECT_EQ(pepper.birthday, today.adding(-1100));
    EXPECT_EQ(pepper.acquired, std::nullopt);
    EXPECT_EQ(pepper.markings, u"Sable"_qs);
    const Pet kiwi = pet(u"Kiwi (sample)"_qs);
    EXPECT_EQ(kiwi.speciesID, u"budgie"_qs);
    EXPECT_EQ(kiwi.sex, u"Unknown"_qs);
    EXPECT_EQ(kiwi.birthday, today.adding(-400));
}

TEST_F(Samples, HaveTheirLogs) {
    const Pet ziggy = pet(u"Ziggy (sample)"_qs);
    const Pet pepper = pet(u"Pepper (sample)"_qs);
    const Pet kiwi = pet(u"Kiwi (sample)"_qs);
    const QList<WeightEntry> ofZiggy = made.store.weights(ziggy.id);
    EXPECT_EQ(gramsOf(ofZiggy), QList<double>({402, 405, 409, 411, 410, 414, 418, 417, 421}));
    EXPECT_EQ(ofZiggy.first().day, today.adding(-112));
    EXPECT_EQ(ofZiggy.last().day, today);
    const QList<WeightEntry> ofPepper = made.store.weights(pepper.id);
    EXPECT_EQ(gramsOf(ofPepper), QList<double>({905, 910, 898, 880, 862, 845}));
    EXPECT_EQ(ofPepper.first().day, today.adding(-30));
    EXPECT_EQ(ofPepper.last().note, u"eating less"_qs);
    EXPECT_EQ(gramsOf(made.store.weights(kiwi.id)), QList<double>({36.0, 35.5, 36.2}));

    const QList<FeedingEntry> meals = made.store.feedings(ziggy.id);
    ASSERT_EQ(meals.size(), 5);
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(meals.at(i).day, today.adding(-i));
        EXPECT_EQ(meals.at(i).food, i % 2 == 0 ? u"Dusted crickets + greens"_qs : u"Greens and squash"_qs);
        EXPECT_EQ(meals.at(i).amount, i % 2 == 0 ? u"6 crickets"_qs : u"1 bowl"_qs);
        EXPECT_EQ(meals.at(i).ate, i != 1);
    }
    const QList<ShedEntry> sheds = made.store.sheds(ziggy.id);
    ASSERT_EQ(sheds.size(), 2);
    EXPECT_EQ(sheds.at(0).day, today.adding(-3));
    EXPECT_FALSE(sheds.at(0).complete);
    EXPECT_EQ(sheds.at(0).note, u"A little stuck on two toes"_qs);
    EXPECT_EQ(sheds.at(1).day, today.adding(-40));
    EXPECT_TRUE(sheds.at(1).complete);
    const QList<VetVisit> visits = made.store.visits(pepper.id);
    ASSERT_EQ(visits.size(), 1);
    EXPECT_EQ(visits.first().day, today.adding(-20));
    EXPECT_EQ(visits.first().clinic + u'|' + visits.first().vet + u'|' + visits.first().reason + u'|' +
                  visits.first().findings + u'|' + visits.first().followUp,
              u"Sample Exotic Clinic|Dr. Sample|Yearly check-up|Healthy (sample)|Weigh weekly"_qs);
    const QList<Medication> medications = made.store.medications(pepper.id);
    ASSERT_EQ(medications.size(), 1);
    EXPECT_EQ(medications.first().name, u"Sample medicine"_qs);
    EXPECT_EQ(medications.first().instructions, u"Exactly as written on the vet's label (sample)"_qs);
    EXPECT_EQ(medications.first().start, today.adding(-20));
    EXPECT_EQ(medications.first().end, today.adding(-10));
}

TEST_F(Samples, AreRemindedTheSameNumberOfTimesEveryDay) {
    const auto name = [this](std::optional<qint64> id) { return id ? made.store.pet(*id)->name : QString(); };
    const QList<Reminder> reminders = made.store.reminders();
    ASSERT_EQ(reminders.size(), 4);
    const auto plan = ReminderPlanner::plan(reminders, name, UserCalendar::now());
    int withoutPet = 0;
    for (const ReminderRequest& request : plan)
        withoutPet += request.title == u"Enclosure cleaning"_qs;
    EXPECT_EQ(withoutPet, 2);
    EXPECT_TRUE(std::ranges::any_of(plan, [](const ReminderRequest& request) {
        return request.title == u"Replace UVB bulb — Ziggy (sample)"_qs;
    }));
    for (int day = 0; day < 30; ++day) {
        const FixedCalendar later(utc(2026, 11, 21, 9) + std::chrono::days(day), u"Europe/Berlin"_qs);
        MadeStore fresh;
        SampleData::add(fresh.store);
        EXPECT_EQ(ReminderPlanner::plan(fresh.store.reminders(), name, UserCalendar::now()).size(),
                  plan.size())
            << day;
    }
}

} // namespace
} // namespace ormiva
