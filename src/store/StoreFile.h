#pragma once

#include "SQLiteDB.h"

#include <QString>

#include <memory>

/// Opening the records' file so that a file which is refused stays as it was to the byte, siblings included.
namespace ormiva::StoreFile {

/// Opens the file at `path` for writing, and makes it when it is missing, readable by the user alone. A file
/// that isn't ours, is of a newer version or can't be read is refused with an OMError and left untouched. The
/// folder must exist.
std::unique_ptr<SQLiteDB> open(const QString& path);

/// Brings an open file to the present version: fills an empty one, accepts one of ours, refuses any other.
void migrate(SQLiteDB& db);

/// What `PRAGMA quick_check` finds wrong with the file at `path`, on a read-only connection of its own; empty
/// when it is sound or can't be checked now (locked, gone). Takes as long as reading the whole file.
QString damage(const QString& path);

} // namespace ormiva::StoreFile
