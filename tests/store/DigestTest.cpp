#include "FixedCalendar.h"
#include "MadeStore.h"

#include <QCryptographicHash>
#include <QSet>

namespace ormiva {
namespace {

using testing::FixedCalendar;
using testing::MadeStore;
using testing::utc;

/// Of no rows at all: the SHA-256 of nothing.
const QString ofNothing = QStringLiteral("e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");

QString sha256(const QString& text) {
    return QString::fromLatin1(QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256).toHex());
}

class Digest : public ::testing::Test {
protected:
    OMStore& store() { return m_made.store; }
    void exec(const QString& sql) { store().db().exec(sql); }
    QString after(const QString& sql) {
        exec(sql);
        return store().digest();
    }
    void addOneRowPerTable() {
        exec(u"INSERT INTO pet (name, species_id) VALUES ('Gex', 'leopard-gecko'), ('Mo', 'rabbit');"
             "INSERT INTO weight (pet_id, day, grams) VALUES (1, '2026-03-07', 421);"
             "INSERT INTO feeding (pet_id, day) VALUES (1, '2026-03-07');"
             "INSERT INTO shed (pet_id, day) VALUES (1, '2026-03-07');"
             "INSERT INTO vet_visit (pet_id, day) VALUES (1, '2026-03-07');"
             "INSERT INTO medication (pet_id, name) VALUES (1, 'Drops');"
             "INSERT INTO reminder (pet_id, kind, every_days, start, hour, minute)"
             " VALUES (1, 'water', 1, '2026-03-07', 9, 0);"
             "INSERT INTO checklist (pet_id, day, item) VALUES (1, '2026-03-07', 'a')"_qs);
    }

    FixedCalendar m_calendar{utc(2026, 3, 7)};
    MadeStore m_made;
};

TEST_F(Digest, OfAnEmptyStoreIsThatOfNothing) {
    EXPECT_EQ(store().digest(), ofNothing);
}

TEST_F(Digest, HashesEveryValueInPrint) {
    exec(u"INSERT INTO pet (id, name, species_id, birthday, photo, notes) VALUES"
         " (7, 'Gex \"the\" \\ lizard', 'leopard-gecko', '2024-02-03', x'00ff00', 'ä')"_qs);
    exec(u"INSERT INTO weight (id, pet_id, day, grams, note) VALUES"
         " (2, 7, '2026-03-07', 421, ''), (1, 7, '2026-03-06', 420.5, 'x')"_qs);
    exec(
        u"INSERT INTO checklist (pet_id, day, item) VALUES (7, '2026-03-07', 'b'), (7, '2026-03-07', 'a')"_qs);
    const QString expected =
        uR"(pet.acquired=null|pet.birthday=text("2024-02-03")|pet.enclosure=text("")|pet.id=int(7)|)"
        uR"(pet.markings=text("")|pet.name=text("Gex \"the\" \\ lizard")|pet.notes=text("ä")|)"
        uR"(pet.photo=blob(3 bytes)|pet.sex=text("")|pet.species_id=text("leopard-gecko")|)"
        uR"(weight.day=text("2026-03-06")|weight.grams=real(420.5)|weight.id=int(1)|weight.note=text("x")|)"
        uR"(weight.pet_id=int(7)|)"
        uR"(weight.day=text("2026-03-07")|weight.grams=real(421.0)|weight.id=int(2)|weight.note=text("")|)"
        uR"(weight.pet_id=int(7)|)"
        uR"(checklist.day=text("2026-03-07")|checklist.item=text("b")|checklist.pet_id=int(7)|)"
        uR"(checklist.day=text("2026-03-07")|checklist.item=text("a")|checklist.pet_id=int(7)|)"_qs;
    EXPECT_EQ(store().digest(), sha256(expected));
}

TEST_F(Digest, IsTheSameAfterARelaunch) {
    addOneRowPerTable();
    const QString before = store().digest();
    EXPECT_NE(before, ofNothing);
    OMStore again(m_made.path());
    EXPECT_EQ(again.digest(), before);
}

TEST_F(Digest, ChangesWithEveryColumnOfEveryTable) {
    addOneRowPerTable();
    const QList<std::pair<QString, QStringList>> changes = {
        {u"pet"_qs,
         {u"name = 'x'"_qs, u"species_id = 'x'"_qs, u"sex = 'x'"_qs, u"birthday = '2026-01-01'"_qs,
          u"acquired = '2026-01-01'"_qs, u"photo = x'00'"_qs, u"markings = 'x'"_qs, u"enclosure = 'x'"_qs,
          u"notes = 'x'"_qs, u"notes = 'X'"_qs}},
        {u"weight"_qs,
         {u"pet_id = 2"_qs, u"day = '2026-03-08'"_qs, u"grams = 421.0000001"_qs, u"grams = '421g'"_qs,
          u"note = 'x'"_qs}},
        {u"feeding"_qs,
         {u"pet_id = 2"_qs, u"day = '2026-03-08'"_qs, u"food = 'x'"_qs, u"amount = 'x'"_qs, u"ate = 0"_qs,
          u"note = 'x'"_qs}},
        {u"shed"_qs, {u"pet_id = 2"_qs, u"day = '2026-03-08'"_qs, u"complete = 0"_qs, u"note = 'x'"_qs}},
        {u"vet_visit"_qs,
         {u"pet_id = 2"_qs, u"day = '2026-03-08'"_qs, u"clinic = 'x'"_qs, u"vet = 'x'"_qs, u"reason = 'x'"_qs,
          u"findings = 'x'"_qs, u"follow_up = 'x'"_qs}},
        {u"medication"_qs,
         {u"pet_id = 2"_qs, u"name = 'x'"_qs, u"instructions = 'x'"_qs, u"prescribed_by = 'x'"_qs,
          u"start = '2026-03-08'"_qs, u"end_day = '2026-03-08'"_qs, u"notes = 'x'"_qs}},
        {u"reminder"_qs,
         {u"pet_id = 2"_qs, u"pet_id = NULL"_qs, u"kind = 'uvb'"_qs, u"title = 'x'"_qs, u"every_days = 2"_qs,
          u"start = '2026-03-08'"_qs, u"hour = 10"_qs, u"minute = 1"_qs, u"last_done = '2026-03-08'"_qs,
          u"active = 0"_qs}},
        {u"checklist"_qs, {u"pet_id = 2"_qs, u"day = '2026-03-08'"_qs, u"item = 'b'"_qs}},
    };
    QSet<QString> digests = {store().digest()};
    qsizetype count = 1;
    for (const auto& [table, columns] : changes)
        for (const QString& change : columns) {
            exec(u"SAVEPOINT before; UPDATE %1 SET %2 WHERE rowid = 1"_qs.arg(table, change));
            digests.insert(store().digest());
            EXPECT_EQ(digests.size(), ++count) << table.toStdString() << ' ' << change.toStdString();
            exec(u"ROLLBACK TO before; RELEASE before"_qs);
        }
    EXPECT_EQ(count, 53);
}

TEST_F(Digest, ChangesWithEveryRowAndItsId) {
    QSet<QString> digests = {store().digest()};
    addOneRowPerTable();
    digests.insert(store().digest());
    digests.insert(after(u"UPDATE shed SET id = 9"_qs));
    digests.insert(after(u"INSERT INTO shed (pet_id, day) VALUES (1, '2026-03-07')"_qs));
    digests.insert(after(u"DELETE FROM checklist"_qs));
    digests.insert(after(u"DELETE FROM pet WHERE id = 1"_qs));
    EXPECT_EQ(digests.size(), 6);
}

TEST_F(Digest, SeesOfAPhotoItsLengthAlone) {
    addOneRowPerTable();
    const QString without = store().digest();
    const QString empty = after(u"UPDATE pet SET photo = x'' WHERE id = 1"_qs);
    const QString three = after(u"UPDATE pet SET photo = x'010203' WHERE id = 1"_qs);
    EXPECT_EQ(after(u"UPDATE pet SET photo = x'ffeedd' WHERE id = 1"_qs), three);
    const QString four = after(u"UPDATE pet SET photo = x'01020304' WHERE id = 1"_qs);
    EXPECT_EQ(QSet<QString>({without, empty, three, four}).size(), 4);
}

TEST_F(Digest, TellsTextsApartThatCouldRunIntoEachOther) {
    addOneRowPerTable();
    const QString a =
        after(uR"(UPDATE pet SET markings = 'a")|pet.name=text("b', name = 'c' WHERE id = 1)"_qs);
    const QString b =
        after(uR"(UPDATE pet SET markings = 'a', name = 'b")|pet.name=text("c' WHERE id = 1)"_qs);
    const QString c = after(uR"(UPDATE pet SET markings = 'a\', name = 'c' WHERE id = 1)"_qs);
    const QString d = after(uR"(UPDATE pet SET markings = 'a\\', name = 'c' WHERE id = 1)"_qs);
    EXPECT_EQ(QSet<QString>({a, b, c, d}).size(), 4);
}

TEST_F(Digest, TellsANumberFromItsText) {
    addOneRowPerTable();
    const QString number = after(u"UPDATE pet SET photo = 3 WHERE id = 1"_qs);
    const QString text = after(u"UPDATE pet SET photo = '3' WHERE id = 1"_qs);
    const QString bytes = after(u"UPDATE pet SET photo = x'33' WHERE id = 1"_qs);
    EXPECT_EQ(QSet<QString>({number, text, bytes}).size(), 3);
}

TEST_F(Digest, CountsATableThatCannotBeReadAsEmpty) {
    exec(
        u"INSERT INTO reminder (kind, every_days, start, hour, minute) VALUES ('water', 1, '2026-03-07', 9, 0)"_qs);
    EXPECT_NE(store().digest(), ofNothing);
    EXPECT_EQ(after(u"DROP TABLE reminder"_qs), ofNothing);
}

TEST_F(Digest, DoesNotDependOnTheRevisionOrTheVersion) {
    addOneRowPerTable();
    const QString before = store().digest();
    store().changed();
    EXPECT_EQ(store().digest(), before);
    EXPECT_EQ(after(u"PRAGMA user_version = 7; CREATE INDEX extra ON shed(day); CREATE TABLE other (x);"
                    "INSERT INTO other VALUES (1)"_qs),
              before);
}

} // namespace
} // namespace ormiva
