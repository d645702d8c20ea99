#include "StoreSchema.h"

#include "MadeStore.h"

namespace ormiva {
namespace {

const QStringList statements = {
    u"CREATE TABLE pet (id INTEGER PRIMARY KEY, name TEXT NOT NULL, species_id TEXT NOT NULL, sex TEXT NOT NULL DEFAULT '', birthday TEXT, acquired TEXT, photo BLOB, markings TEXT NOT NULL DEFAULT '', enclosure TEXT NOT NULL DEFAULT '', notes TEXT NOT NULL DEFAULT '');"_qs,
    u"CREATE TABLE weight (id INTEGER PRIMARY KEY, pet_id INTEGER NOT NULL REFERENCES pet(id) ON DELETE CASCADE, day TEXT NOT NULL, grams REAL NOT NULL, note TEXT NOT NULL DEFAULT '');"_qs,
    u"CREATE TABLE feeding (id INTEGER PRIMARY KEY, pet_id INTEGER NOT NULL REFERENCES pet(id) ON DELETE CASCADE, day TEXT NOT NULL, food TEXT NOT NULL DEFAULT '', amount TEXT NOT NULL DEFAULT '', ate INTEGER NOT NULL DEFAULT 1, note TEXT NOT NULL DEFAULT '');"_qs,
    u"CREATE TABLE shed (id INTEGER PRIMARY KEY, pet_id INTEGER NOT NULL REFERENCES pet(id) ON DELETE CASCADE, day TEXT NOT NULL, complete INTEGER NOT NULL DEFAULT 1, note TEXT NOT NULL DEFAULT '');"_qs,
    u"CREATE TABLE vet_visit (id INTEGER PRIMARY KEY, pet_id INTEGER NOT NULL REFERENCES pet(id) ON DELETE CASCADE, day TEXT NOT NULL, clinic TEXT NOT NULL DEFAULT '', vet TEXT NOT NULL DEFAULT '', reason TEXT NOT NULL DEFAULT '', findings TEXT NOT NULL DEFAULT '', follow_up TEXT NOT NULL DEFAULT '');"_qs,
    u"CREATE TABLE medication (id INTEGER PRIMARY KEY, pet_id INTEGER NOT NULL REFERENCES pet(id) ON DELETE CASCADE, name TEXT NOT NULL, instructions TEXT NOT NULL DEFAULT '', prescribed_by TEXT NOT NULL DEFAULT '', start TEXT, end_day TEXT, notes TEXT NOT NULL DEFAULT '');"_qs,
    u"CREATE TABLE reminder (id INTEGER PRIMARY KEY, pet_id INTEGER REFERENCES pet(id) ON DELETE CASCADE, kind TEXT NOT NULL, title TEXT NOT NULL DEFAULT '', every_days INTEGER NOT NULL, start TEXT NOT NULL, hour INTEGER NOT NULL, minute INTEGER NOT NULL, last_done TEXT, active INTEGER NOT NULL DEFAULT 1);"_qs,
    u"CREATE TABLE checklist (pet_id INTEGER NOT NULL REFERENCES pet(id) ON DELETE CASCADE, day TEXT NOT NULL, item TEXT NOT NULL, PRIMARY KEY (pet_id, day, item));"_qs,
    u"CREATE INDEX weight_pet ON weight(pet_id, day);"_qs,
    u"CREATE INDEX feeding_pet ON feeding(pet_id, day);"_qs,
};

TEST(StoreSchema, IsOneScript) {
    EXPECT_EQ(StoreSchema::sql().simplified(), statements.join(u' '));
}

TEST(StoreSchema, NamesItsTablesInOrder) {
    EXPECT_EQ(StoreSchema::tables(),
              QStringList({u"pet"_qs, u"weight"_qs, u"feeding"_qs, u"shed"_qs, u"vet_visit"_qs,
                           u"medication"_qs, u"reminder"_qs, u"checklist"_qs}));
}

TEST(StoreSchema, HasItsNumbers) {
    EXPECT_EQ(StoreSchema::applicationID, 1330468401);
    EXPECT_EQ(QByteArray::fromHex(QByteArray::number(StoreSchema::applicationID, 16)), QByteArray("OMV1"));
    EXPECT_EQ(StoreSchema::version, 1);
}

TEST(StoreSchema, GivesEachTypeOfRecordItsColumns) {
    testing::MadeStore made;
    const auto columns = [&](const QString& table) {
        QStringList names;
        for (const SQLRow& row : made.store.db().query(u"PRAGMA table_info(%1)"_qs.arg(table)))
            names.append(row.str(u"name"_qs));
        return names;
    };
    const QString id = u"id"_qs;
    EXPECT_EQ(columns(Pet::table()), QStringList(id) + Pet::columns());
    EXPECT_EQ(columns(WeightEntry::table()), QStringList(id) + WeightEntry::columns());
    EXPECT_EQ(columns(FeedingEntry::table()), QStringList(id) + FeedingEntry::columns());
    EXPECT_EQ(columns(ShedEntry::table()), QStringList(id) + ShedEntry::columns());
    EXPECT_EQ(columns(VetVisit::table()), QStringList(id) + VetVisit::columns());
    EXPECT_EQ(columns(Medication::table()), QStringList(id) + Medication::columns());
    EXPECT_EQ(columns(Reminder::table()), QStringList(id) + Reminder::columns());
}

} // namespace
} // namespace ormiva
