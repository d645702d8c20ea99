#include "OMStore.h"

#include "StoreFile.h"
#include "StoreSchema.h"

#include <QCryptographicHash>

namespace ormiva {

namespace {

std::unique_ptr<OMStore>& sharedStore() {
    static std::unique_ptr<OMStore> store;
    return store;
}

} // namespace

OMStore* OMStore::shared() {
    return sharedStore().get();
}

void OMStore::setShared(std::unique_ptr<OMStore> store) {
    sharedStore() = std::move(store);
}

OMStore::OMStore(const QString& url)
    : m_url(url)
    , m_db(StoreFile::open(url)) {}

void OMStore::changed() {
    ++m_revision;
    Q_EMIT revisionChanged();
}

QList<SQLRow> OMStore::rows(const QString& table, const QString& where, const SQLArguments& arguments,
                            const QString& order) {
    QString sql = QStringLiteral("SELECT * FROM ") + table + u' ';
    if (!where.isEmpty())
        sql += QStringLiteral("WHERE ") + where;
    sql += QStringLiteral(" ORDER BY ") + order;
    try {
        return m_db->query(sql, arguments);
    } catch (const OMError&) { // The screens never deal with a read error: nothing is there to be shown.
        return {};
    }
}

void OMStore::write(const QString& table, const QStringList& columns, SQLArguments values, qint64& id) {
    if (id != 0) {
        if (m_db->scalarInt(QStringLiteral("SELECT count(*) FROM %1 WHERE id = ?").arg(table), {id}) != 1)
            throw OMError::notFound();
        values.append(id);
        writer().run(QStringLiteral("UPDATE %1 SET %2 = ? WHERE id = ?")
                         .arg(table, columns.join(QStringLiteral(" = ?, "))),
                     values);
    } else {
        const QStringList marks(columns.size(), QStringLiteral("?"));
        id = writer().run(
            QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                .arg(table, columns.join(QStringLiteral(", ")), marks.join(QStringLiteral(", "))),
            values);
    }
    changed();
}

void OMStore::removeRow(const QString& table, qint64 id) {
    writer().run(QStringLiteral("DELETE FROM %1 WHERE id = ?").arg(table), {id});
    changed();
}

SQLiteDB& OMStore::writer() {
    if (!m_durable &&
        !m_db->isInTransaction()) { // SQLite changes nothing about syncing inside a transaction.
        StoreFile::makeDurable(*m_db);
        m_durable = true;
    }
    return *m_db;
}

QList<Pet> OMStore::pets() {
    return all<Pet>({}, {}, QStringLiteral("name COLLATE NOCASE"));
}

std::optional<Pet> OMStore::pet(qint64 id) {
    const QList<Pet> found = all<Pet>(QStringLiteral("id = ?"), {id});
    return found.isEmpty() ? std::nullopt : std::optional(found.first());
}

namespace {
const QString ofPet = QStringLiteral("pet_id = ?");
const QString newestFirst = QStringLiteral("day DESC, id DESC");
} // namespace

QList<WeightEntry> OMStore::weights(qint64 petID) {
    return all<WeightEntry>(ofPet, {petID}, QStringLiteral("day, id"));
}

QList<FeedingEntry> OMStore::feedings(qint64 petID) {
    return all<FeedingEntry>(ofPet, {petID}, newestFirst);
}

QList<ShedEntry> OMStore::sheds(qint64 petID) {
    return all<ShedEntry>(ofPet, {petID}, newestFirst);
}

QList<VetVisit> OMStore::visits(qint64 petID) {
    return all<VetVisit>(ofPet, {petID}, newestFirst);
}

QList<Medication> OMStore::medications(qint64 petID) {
    return all<Medication>(ofPet, {petID}, QStringLiteral("start DESC, id DESC"));
}

QList<Reminder> OMStore::reminders() {
    return all<Reminder>();
}

QList<Reminder> OMStore::reminders(qint64 petID) {
    return all<Reminder>(ofPet, {petID});
}

void OMStore::markDone(Reminder reminder, const OMDay& day) {
    reminder.lastDone = day;
    save(reminder);
}

QSet<QString> OMStore::checked(qint64 petID, const OMDay& day) {
    QSet<QString> items;
    try {
        const QList<SQLRow> found = m_db->query(
            QStringLiteral("SELECT item FROM checklist WHERE pet_id = ? AND day = ?"), {petID, day.iso()});
        for (const SQLRow& row : found)
            items.insert(row.str(QStringLiteral("item")));
    } catch (const OMError&) { // As every read: nothing is there to be shown.
        return {};
    }
    return items;
}

void OMStore::setChecked(qint64 petID, const OMDay& day, const QString& item, bool on) {
    writer().run(on ? QStringLiteral("INSERT OR IGNORE INTO checklist (pet_id, day, item) VALUES (?,?,?)")
                    : QStringLiteral("DELETE FROM checklist WHERE pet_id = ? AND day = ? AND item = ?"),
                 {petID, day.iso(), item});
    changed();
}

QMap<QString, qint64> OMStore::counts() {
    QMap<QString, qint64> counts;
    for (const QString& table : StoreSchema::tables())
        counts.insert(table, m_db->scalarInt(QStringLiteral("SELECT count(*) FROM ") + table));
    return counts;
}

QString OMStore::digest() {
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const QString& table : StoreSchema::tables())
        for (const SQLRow& row : rows(table, {}, {}, QStringLiteral("rowid")))
            for (const auto& [column, value] : row.values)
                hash.addData((table + u'.' + column + u'=' + printable(value) + u'|').toUtf8());
    return QString::fromLatin1(hash.result().toHex());
}

} // namespace ormiva
