#include "BackupFile.h"

#include "OMError.h"
#include "RecordFiles.h"
#include "StoreFile.h"
#include "StoreSchema.h"
#include "WholeFile.h"

#include <QFileInfo>
#include <QTemporaryDir>

#include <optional>

namespace ormiva::BackupFile {

namespace {

const QString notADatabase = QStringLiteral("it is not a database file.");

/// The number in the first row of `sql`; absent when it can't be read or is none.
std::optional<qint64> number(SQLiteDB& db, const QString& sql) {
    try {
        const QList<SQLRow> rows = db.query(sql);
        return rows.isEmpty() ? std::nullopt : integerOf(rows.first().values.begin()->second);
    } catch (const OMError&) {
        return std::nullopt;
    }
}

bool isSound(SQLiteDB& db) {
    try {
        const QList<SQLRow> rows = db.query(QStringLiteral("PRAGMA integrity_check"));
        return !rows.isEmpty() && rows.first().str(QStringLiteral("integrity_check")) == QStringLiteral("ok");
    } catch (const OMError&) {
        return false;
    }
}

SQLiteDB opened(const QString& path) {
    try {
        return SQLiteDB(path, true);
    } catch (const OMError&) {
        throw OMError::badBackup(notADatabase);
    }
}

/// The checks on an open file, in their order; the first that fails is told.
QMap<QString, qint64> inspect(SQLiteDB& db) {
    const auto applicationID = number(db, QStringLiteral("PRAGMA application_id"));
    if (!applicationID)
        throw OMError::badBackup(notADatabase);
    if (applicationID != StoreSchema::applicationID)
        throw OMError::badBackup(QStringLiteral("it was not made by VLK Ormiva."));
    if (db.scalarInt(QStringLiteral("PRAGMA user_version")) != StoreSchema::version)
        throw OMError::badBackup(QStringLiteral("it was made by a newer version of the app."));
    if (!isSound(db))
        throw OMError::badBackup(QStringLiteral("the file is damaged."));
    QMap<QString, qint64> counts;
    for (const QString& table : StoreSchema::tables()) {
        const auto rows = number(db, QStringLiteral("SELECT count(*) AS n FROM ") + table);
        if (!rows)
            throw OMError::badBackup(QStringLiteral("the %1 table is missing.").arg(table));
        counts.insert(table, *rows);
    }
    return counts;
}

/// Copies a file in WAL mode with what its log holds, and makes one file of the two.
void copyWithLog(const QString& path, const QString& to, const Files& files) {
    const QString log = QStringLiteral("-wal");
    files.copy(path, to);
    if (files.exists(path + log))
        files.copy(path + log, to + log);
    try {
        SQLiteDB(to).exec(QStringLiteral("PRAGMA journal_mode = DELETE"));
    } catch (const OMError&) {
        throw OMError::badBackup(QStringLiteral("the file is damaged."));
    }
    files.sync(to);
}

} // namespace

void write(SQLiteDB& db, const QString& destination, const Files& files) {
    const QString temporary = WholeFile::temporaryName(destination);
    try {
        files.create(temporary); // SQLite fills an empty file, and would make one for everybody to read.
        db.exec(
            QStringLiteral("VACUUM INTO '%1'").arg(QString(temporary).replace(u'\'', QStringLiteral("''"))));
        files.sync(temporary);
        files.rename(temporary, destination);
        files.syncFolderOf(destination);
    } catch (...) {
        files.removeIfPossible(temporary + QStringLiteral("-journal"));
        files.removeIfPossible(temporary);
        throw;
    }
}

QMap<QString, qint64> inspect(const QString& path) {
    if (!QFileInfo::exists(path))
        throw OMError::badBackup(QStringLiteral("the file was not found."));
    if (StoreFile::isInWalMode(path)) {
        // Reading it would make siblings beside it.
        const QTemporaryDir folder;
        const QString copied = folder.filePath(QStringLiteral("copy.sqlite"));
        copyWithLog(path, copied, Files());
        SQLiteDB db = opened(copied);
        return inspect(db);
    }
    SQLiteDB db = opened(path);
    return inspect(db);
}

void copy(const QString& path, const QString& to, const Files& files) {
    try {
        if (StoreFile::isInWalMode(path))
            copyWithLog(path, to, files);
        else
            files.copy(path, to);
        inspect(to); // The file may have changed since it was looked at.
    } catch (...) {
        for (const QString& sibling : RecordFiles::siblingSuffixes())
            files.removeIfPossible(to + sibling);
        files.removeIfPossible(to);
        throw;
    }
}

} // namespace ormiva::BackupFile
