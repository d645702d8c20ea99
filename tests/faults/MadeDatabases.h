#pragma once

#include <QByteArray>
#include <QString>

/// Database files in the states in which a start may meet them. Each function makes `path` (and its siblings)
/// and aborts the test program when it can't, or when the state it promises isn't really there.
namespace ormiva::testing::MadeDatabases {

/// Records of ours with one pet and 40 weights.
void ours(const QString& path);
/// Somebody else's file: version 0 with a table of 200 rows.
void foreign(const QString& path);

/// Puts the file into WAL mode with one more committed transaction that stands in the -wal only. Nobody has
/// it open.
void leavePendingWal(const QString& path);
/// Leaves the file in the middle of a transaction that a crash cut off: pages already overwritten, and a
/// journal that takes them back. Runs `sql` in that transaction.
void leaveHotJournal(const QString& path, const char* sql);

void exec(const QString& path, const char* sql);
void flipByte(const QString& path, qint64 offset);
QByteArray bytes(const QString& path);
void write(const QString& path, const QByteArray& content);

} // namespace ormiva::testing::MadeDatabases
