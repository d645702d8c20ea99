#pragma once

#include "Files.h"
#include "SQLiteDB.h"

#include <QMap>
#include <QString>

/// A backup: all records in one compacted SQLite file of the store's own schema.
namespace ormiva::BackupFile {

/// Without the dot.
inline const QString suffix = QStringLiteral("ombackup");
inline const QString typeIdentifier = QStringLiteral("com.ventrel.ormiva.backup");

/// Writes everything that `db` holds to `destination`, in place of a file that is there; that one is kept
/// until the new one is complete and on the disk. Throws OMError::database or FileError.
void write(SQLiteDB& db, const QString& destination, const Files& files = Files());

/// The rows of each of the eight tables of the backup at `path`. Throws OMError::badBackup with the reason
/// when it is no backup, is damaged or of another version. Writes nothing, neither to the file nor beside it.
QMap<QString, qint64> inspect(const QString& path);

/// Makes a copy that can take the place of the records: one complete file, synced. Throws FileError, or
/// OMError::badBackup when the copy doesn't pass `inspect`.
void copy(const QString& path, const QString& to, const Files& files = Files());

} // namespace ormiva::BackupFile
