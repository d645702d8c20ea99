#pragma once

#include "SQLiteDB.h"

#include <QString>

#include <memory>

/// Opening the records' file so that a file which is refused stays as it was to the byte, siblings included.
namespace ormiva::StoreFile {

/// Opens the file at `path` for writing, and makes it with its folder when it is missing, readable by the
/// user alone. A file that isn't ours, is of a newer version or can't be read is refused with an OMError and
/// left untouched. Throws FileError when the folder can't be made.
std::unique_ptr<SQLiteDB> open(const QString& path);

/// Brings an open file to the present version: fills an empty one, accepts one of ours, refuses any other.
void migrate(SQLiteDB& db);

/// True for a database in write-ahead mode, which even reading leaves siblings beside.
bool isInWalMode(const QString& path);

/// Makes every commit of this connection survive a loss of power: EXTRA syncs the folder too after the
/// journal is deleted, which FULL doesn't. To be called before the first write; it reads the whole schema, so
/// opening doesn't wait for it.
void makeDurable(SQLiteDB& db);

/// What `PRAGMA quick_check` finds wrong with the file at `path`, on a read-only connection of its own; empty
/// when it is sound or can't be checked now (locked, gone). Takes as long as reading the whole file.
QString damage(const QString& path);

} // namespace ormiva::StoreFile
