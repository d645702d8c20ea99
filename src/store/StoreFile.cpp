#include "StoreFile.h"

#include "Failure.h"
#include "OMError.h"
#include "StoreSchema.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ormiva::StoreFile {

namespace {

const QString siblingSuffixes[] = {QStringLiteral("-journal"), QStringLiteral("-wal"),
                                   QStringLiteral("-shm")};

/// An empty file is made before SQLite would make it for everybody to read. SQLite gives the siblings its
/// mode.
void createPrivately(const QString& path) {
    const int file =
        ::open(QFile::encodeName(path).constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0600);
    if (file >= 0)
        ::close(file);
    // Whatever went wrong here goes wrong again when SQLite opens the file, and is reported there.
}

void makePrivate(const QString& path) {
    // Not every file system knows modes; the records are kept all the same.
    ::chmod(QFile::encodeName(path).constData(), 0600);
    for (const QString& suffix : siblingSuffixes)
        ::chmod(QFile::encodeName(path + suffix).constData(), 0600);
}

/// Whether reading the file in place changes nothing on disk: a rollback-journal file without siblings. With
/// a journal SQLite would roll back, in WAL mode it would make and fill siblings, both before we know whose
/// file it is.
bool readsWithoutWriting(const QString& path) {
    for (const QString& suffix : siblingSuffixes)
        if (QFileInfo::exists(path + suffix))
            return false;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return true; // There is nothing to be read, and so nothing that SQLite could write.
    // Offsets 18 and 19 of the header: write and read version, 2 for WAL.
    const QByteArray header = file.read(20);
    return header.size() < 20 || (header.at(18) != 2 && header.at(19) != 2);
}

enum class Standing { Empty, Ours };

/// Whether the file is new or ours; throws when it is neither. Writes nothing.
Standing standing(SQLiteDB& db) {
    // A version that can't be read must not look like 0.
    const QList<SQLRow> rows = db.query(QStringLiteral("PRAGMA user_version"));
    const qint64 version =
        rows.isEmpty() ? 0 : rows.first().integer(QStringLiteral("user_version")).value_or(0);
    if (version > StoreSchema::version)
        throw OMError::database(QStringLiteral(
            "This database was made by a newer version of VLK Ormiva. Please update the app."));
    if (version != 0)
        return Standing::Ours;
    if (db.query(QStringLiteral("SELECT 1 FROM sqlite_master WHERE type='table' LIMIT 1")).size() != 0)
        throw OMError::database(QStringLiteral("This file is not a VLK Ormiva database."));
    return Standing::Empty;
}

void copyOrThrow(const QString& from, const QString& to) {
    QFile source(from);
    if (!source.copy(to))
        throw FileError(
            QStringLiteral("“%1” could not be copied for a check: %2.").arg(from, source.errorString()));
}

/// Judges a copy of the file with its siblings, where SQLite may write as it likes.
void judgeFromCopy(const QString& path) {
    const QTemporaryDir folder;
    if (!folder.isValid())
        throw FileError(QStringLiteral("A folder for checking the records could not be made: %1.")
                            .arg(folder.errorString()));
    const QString copy = folder.filePath(QStringLiteral("copy.sqlite"));
    copyOrThrow(path, copy);
    for (const QString& suffix : {siblingSuffixes[0], siblingSuffixes[1]})
        if (QFileInfo::exists(path + suffix))
            copyOrThrow(path + suffix, copy + suffix);
    SQLiteDB db(copy);
    standing(db);
}

} // namespace

std::unique_ptr<SQLiteDB> open(const QString& path) {
    const QFileInfo file(path);
    if (!file.exists())
        createPrivately(path);
    // SQLite looks for the siblings beside the file that a link leads to.
    else if (const QString real = file.canonicalFilePath(); file.isFile() && !readsWithoutWriting(real))
        judgeFromCopy(real);
    auto db = std::make_unique<SQLiteDB>(path);
    migrate(*db);
    makePrivate(QFileInfo(path).canonicalFilePath());
    return db;
}

void migrate(SQLiteDB& db) {
    const Standing found = standing(db);
    try {
        // EXTRA, because FULL leaves the folder unsynced after the journal is deleted; and one file only, so
        // that backup, inspection and restore can rely on it.
        db.exec(QStringLiteral("PRAGMA synchronous = EXTRA; PRAGMA journal_mode = DELETE"));
    } catch (const OMError&) { // A schema so damaged that these fail can't be written to either.
    }
    if (found == Standing::Ours)
        return;
    db.transaction([&] { db.exec(StoreSchema::sql()); });
    db.exec(QStringLiteral("PRAGMA application_id = ") + QString::number(StoreSchema::applicationID));
    db.exec(QStringLiteral("PRAGMA user_version = ") + QString::number(StoreSchema::version));
}

QString damage(const QString& path) {
    try {
        SQLiteDB db(path, true);
        try {
            const QList<SQLRow> rows = db.query(QStringLiteral("PRAGMA quick_check(1)"));
            const QString first =
                rows.isEmpty() ? QString() : rows.first().str(QStringLiteral("quick_check"));
            return first == QStringLiteral("ok") ? QString() : first;
        } catch (const OMError& error) {
            const int code = db.lastErrorCode();
            return code == SQLITE_CORRUPT || code == SQLITE_NOTADB ? error.payload() : QString();
        }
    } catch (
        const OMError&) { // The file is gone or can't be opened a second time: nothing is known to be wrong.
        return {};
    }
}

} // namespace ormiva::StoreFile
