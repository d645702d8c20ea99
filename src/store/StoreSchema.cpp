#include "StoreSchema.h"

namespace ormiva::StoreSchema {

const QStringList& tables() {
    static const QStringList names = {
        QStringLiteral("pet"),      QStringLiteral("weight"),    QStringLiteral("feeding"),
        QStringLiteral("shed"),     QStringLiteral("vet_visit"), QStringLiteral("medication"),
        QStringLiteral("reminder"), QStringLiteral("checklist"),
    };
    return names;
}

// Every row but a reminder for no one pet hangs from a pet and goes when the pet goes.
const QString& sql() {
    static const QString script = QStringLiteral(R"(
CREATE TABLE pet (id INTEGER PRIMARY KEY, name TEXT NOT NULL, species_id TEXT NOT NULL,
    sex TEXT NOT NULL DEFAULT '', birthday TEXT, acquired TEXT, photo BLOB,
    markings TEXT NOT NULL DEFAULT '', enclosure TEXT NOT NULL DEFAULT '', notes TEXT NOT NULL DEFAULT '');
CREATE TABLE weight (id INTEGER PRIMARY KEY, pet_id INTEGER NOT NULL REFERENCES pet(id) ON DELETE CASCADE,
    day TEXT NOT NULL, grams REAL NOT NULL, note TEXT NOT NULL DEFAULT '');
CREATE TABLE feeding (id INTEGER PRIMARY KEY, pet_id INTEGER NOT NULL REFERENCES pet(id) ON DELETE CASCADE,
    day TEXT NOT NULL, food TEXT NOT NULL DEFAULT '', amount TEXT NOT NULL DEFAULT '',
    ate INTEGER NOT NULL DEFAULT 1, note TEXT NOT NULL DEFAULT '');
CREATE TABLE shed (id INTEGER PRIMARY KEY, pet_id INTEGER NOT NULL REFERENCES pet(id) ON DELETE CASCADE,
    day TEXT NOT NULL, complete INTEGER NOT NULL DEFAULT 1, note TEXT NOT NULL DEFAULT '');
CREATE TABLE vet_visit (id INTEGER PRIMARY KEY, pet_id INTEGER NOT NULL REFERENCES pet(id) ON DELETE CASCADE,
    day TEXT NOT NULL, clinic TEXT NOT NULL DEFAULT '', vet TEXT NOT NULL DEFAULT '',
    reason TEXT NOT NULL DEFAULT '', findings TEXT NOT NULL DEFAULT '', follow_up TEXT NOT NULL DEFAULT '');
CREATE TABLE medication (id INTEGER PRIMARY KEY, pet_id INTEGER NOT NULL REFERENCES pet(id) ON DELETE CASCADE,
    name TEXT NOT NULL, instructions TEXT NOT NULL DEFAULT '', prescribed_by TEXT NOT NULL DEFAULT '',
    start TEXT, end_day TEXT, notes TEXT NOT NULL DEFAULT '');
CREATE TABLE reminder (id INTEGER PRIMARY KEY, pet_id INTEGER REFERENCES pet(id) ON DELETE CASCADE,
    kind TEXT NOT NULL, title TEXT NOT NULL DEFAULT '', every_days INTEGER NOT NULL, start TEXT NOT NULL,
    hour INTEGER NOT NULL, minute INTEGER NOT NULL, last_done TEXT, active INTEGER NOT NULL DEFAULT 1);
CREATE TABLE checklist (pet_id INTEGER NOT NULL REFERENCES pet(id) ON DELETE CASCADE, day TEXT NOT NULL,
    item TEXT NOT NULL, PRIMARY KEY (pet_id, day, item));
CREATE INDEX weight_pet ON weight(pet_id, day);
CREATE INDEX feeding_pet ON feeding(pet_id, day);
)");
    return script;
}

} // namespace ormiva::StoreSchema
