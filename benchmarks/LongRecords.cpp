#include "LongRecords.h"

namespace ormiva::bench {

Pet addLongRecords(OMStore& store) {
    constexpr int days = 5000;
    constexpr int visits = 200;
    Pet pet;
    pet.name = QStringLiteral("Methuselah");
    pet.speciesID = QStringLiteral("rabbit");
    store.save(pet);
    const OMDay first = OMDay::today().adding(-days);
    store.db().transaction([&] {
        for (int i = 0; i < days; ++i) {
            const QString day = first.adding(i).iso();
            store.db().run(
                QStringLiteral("INSERT INTO weight (pet_id, day, grams, note) VALUES (?, ?, ?, ?)"),
                {pet.id, day, 1800.0 + i % 97, QStringLiteral("before meal %1").arg(i)});
            store.db().run(QStringLiteral("INSERT INTO feeding (pet_id, day, food, amount, note) "
                                          "VALUES (?, ?, ?, ?, ?)"),
                           {pet.id, day, QStringLiteral("Timothy hay and greens"), QStringLiteral("a bundle"),
                            QStringLiteral("left %1 stems").arg(i)});
        }
        for (int i = 0; i < visits; ++i)
            store.db().run(
                QStringLiteral("INSERT INTO vet_visit (pet_id, day, clinic, vet, reason, findings, "
                               "follow_up) VALUES (?, ?, ?, ?, ?, ?, ?)"),
                {pet.id, first.adding(25 * i).iso(), QStringLiteral("Exotics Clinic"),
                 QStringLiteral("Dr. Vet"), QStringLiteral("Check-up and nails"),
                 QStringLiteral("Healthy, teeth in order, weight as on visit %1").arg(i),
                 QStringLiteral("Come again in a month")});
    });
    return pet;
}

} // namespace ormiva::bench
