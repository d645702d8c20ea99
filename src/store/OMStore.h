#pragma once

#include "Files.h"
#include "LogEntries.h"
#include "OMError.h"
#include "Pet.h"
#include "Reminder.h"
#include "SQLiteDB.h"
#include "VetRecords.h"

#include <QMap>
#include <QObject>
#include <QSet>

#include <memory>

namespace ormiva {

/// The keeper's records: one SQLite file, read and written record by record. Every write is complete when the
/// call returns. Reads never fail, they are empty instead; writes throw OMError. Main thread only.
class OMStore final : public QObject {
    Q_OBJECT
    Q_PROPERTY(int revision READ revision NOTIFY revisionChanged)

public:
    /// The store of this run; null when no file could be opened.
    static OMStore* shared();
    static void setShared(std::unique_ptr<OMStore> store);

    /// Opens the file at `url`, and makes it with its folder when it is missing. Throws FileError when the
    /// folder can't be made, OMError when the file is refused; a refused file is left as it was.
    explicit OMStore(const QString& url);

    const QString& url() const { return m_url; }
    /// The open connection, for reading.
    SQLiteDB& db() { return *m_db; }
    /// Grows by 1 on every change of the records; never stored.
    int revision() const { return m_revision; }
    /// Announces a change: whoever shows records reads them again.
    void changed();

    /// `where` and `order` are literals of the program with `?` parameters, never a user's text.
    template <OMRecord T>
    QList<T> all(const QString& where = {}, const SQLArguments& arguments = {},
                 const QString& order = QStringLiteral("id"));
    /// Validates and writes; a new record gets its `id`. Throws `notFound` when an `id` is no longer there.
    template <OMRecord T>
    void save(T& record);
    /// Deletes a row; one that is already gone is no failure. A pet takes all its rows with it.
    template <OMRecord T>
    void remove(qint64 id);

    /// By name, case ignored.
    QList<Pet> pets();
    std::optional<Pet> pet(qint64 id);
    /// Oldest first; the other logs newest first, and of one day the later made first.
    QList<WeightEntry> weights(qint64 petID);
    QList<FeedingEntry> feedings(qint64 petID);
    QList<ShedEntry> sheds(qint64 petID);
    QList<VetVisit> visits(qint64 petID);
    QList<Medication> medications(qint64 petID);
    QList<Reminder> reminders();
    /// Those of one pet, without the ones for no one pet.
    QList<Reminder> reminders(qint64 petID);
    void markDone(Reminder reminder, const OMDay& day);

    /// The ticks of the enclosure checklist: the texts of its items.
    QSet<QString> checked(qint64 petID, const OMDay& day);
    void setChecked(qint64 petID, const OMDay& day, const QString& item, bool on);

    /// Rows by table name, all eight tables.
    QMap<QString, qint64> counts();
    /// A fingerprint of all records, 64 hexadecimal digits. Of a photo only its length goes into it.
    QString digest();

    /// Writes all records to one file; see `BackupFile::write`. Throws OMError::invalid when `destination`
    /// holds records of the keeper, OMError::database or FileError when it can't be written.
    void backup(const QString& destination, const Files& files = Files());
    /// The rows by table of the backup at `path`, once it has passed every check. Throws OMError::badBackup.
    static QMap<QString, qint64> inspectBackup(const QString& path);
    /// Replaces all records by those of a backup and gives the path of the safety copy that was made of them
    /// before, which stays. At no point are the records lost: what fails before the backup is in place leaves
    /// the file alone, and what fails after it puts the file back. Throws OMError::badBackup,
    /// OMError::database or FileError.
    QString restore(const QString& path, const Files& files = Files());

Q_SIGNALS:
    void revisionChanged();

private:
    /// The file that is replaced by a restore: where `url` leads to.
    QString realPath() const;
    /// Works on with the file that now stands at `path`, and never makes one there.
    void reopen(const QString& path, const Files& files);
    QList<SQLRow> rows(const QString& table, const QString& where, const SQLArguments& arguments,
                       const QString& order);
    void write(const QString& table, const QStringList& columns, SQLArguments values, qint64& id);
    void removeRow(const QString& table, qint64 id);
    /// The open connection, for writing: what is committed on it lasts.
    SQLiteDB& writer();

    QString m_url;
    std::unique_ptr<SQLiteDB> m_db;
    bool m_durable = false; ///< whether `m_db` has been made durable
    int m_revision = 0;
};

template <OMRecord T>
QList<T> OMStore::all(const QString& where, const SQLArguments& arguments, const QString& order) {
    QList<T> records;
    for (const SQLRow& row : rows(T::table(), where, arguments, order))
        records.append(T::fromRow(row));
    return records;
}

template <OMRecord T>
void OMStore::save(T& record) {
    record.validate(*this);
    write(T::table(), T::columns(), record.columnValues(), record.id);
}

template <OMRecord T>
void OMStore::remove(qint64 id) {
    removeRow(T::table(), id);
}

} // namespace ormiva
