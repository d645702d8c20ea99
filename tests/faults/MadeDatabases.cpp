#include "MadeDatabases.h"

#include "OMStore.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <sqlite3.h>

namespace ormiva::testing::MadeDatabases {

namespace {

void demand(bool holds, const char* what) {
    if (holds)
        return;
    std::fprintf(stderr, "could not make the database for this test: %s\n", what);
    std::abort();
}

sqlite3* opened(const QString& path) {
    sqlite3* handle = nullptr;
    demand(sqlite3_open(path.toUtf8().constData(), &handle) == SQLITE_OK, "open");
    return handle;
}

void run(sqlite3* handle, const char* sql) {
    demand(sqlite3_exec(handle, sql, nullptr, nullptr, nullptr) == SQLITE_OK, sql);
}

/// Replaces `path` and the sibling with that suffix by copies taken while `handle` still has them open, as a
/// crash would leave them.
void crashHere(sqlite3* handle, const QString& path, const QString& suffix) {
    const QByteArray main = bytes(path);
    const QByteArray sibling = bytes(path + suffix);
    sqlite3_close(handle);
    for (const QString& end :
         {QString(), QStringLiteral("-journal"), QStringLiteral("-wal"), QStringLiteral("-shm")})
        QFile::remove(path + end);
    write(path, main);
    write(path + suffix, sibling);
    demand(!sibling.isEmpty(), "an empty sibling");
}

} // namespace

void ours(const QString& path) {
    OMStore store(path);
    Pet pet;
    pet.name = QStringLiteral("Rex");
    pet.speciesID = QStringLiteral("rabbit");
    store.save(pet);
    for (int i = 1; i <= 40; ++i) {
        WeightEntry entry;
        entry.petID = pet.id;
        entry.grams = i;
        entry.note = QString(200, u'n');
        store.save(entry);
    }
}

void foreign(const QString& path) {
    exec(path,
         "CREATE TABLE t (x TEXT); WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n LIMIT 200) "
         "INSERT INTO t SELECT printf('%0100d', i) FROM n");
}

void leavePendingWal(const QString& path) {
    sqlite3* handle = opened(path);
    run(handle, "PRAGMA journal_mode = WAL; PRAGMA wal_autocheckpoint = 0; CREATE TABLE IF NOT EXISTS "
                "only_in_wal (x);"
                "INSERT INTO only_in_wal VALUES (1)");
    crashHere(handle, path, QStringLiteral("-wal"));
    demand(!bytes(path).contains("only_in_wal"), "the change is in the main file already");
}

void leaveHotJournal(const QString& path, const char* sql) {
    const QByteArray before = bytes(path);
    sqlite3* handle = opened(path);
    // A cache of next to nothing makes SQLite write pages before the transaction ends.
    run(handle, "PRAGMA cache_size = 1; PRAGMA cache_spill = 1; BEGIN IMMEDIATE");
    run(handle, sql);
    crashHere(handle, path, QStringLiteral("-journal"));
    demand(bytes(path) != before, "no page was overwritten");

    // The journal really is hot: SQLite takes a copy back to where it was.
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QStringLiteral("copy"));
    write(copy, bytes(path));
    write(copy + QStringLiteral("-journal"), bytes(path + QStringLiteral("-journal")));
    exec(copy, "SELECT count(*) FROM sqlite_master");
    demand(bytes(copy) == before, "the journal isn't hot");
}

void exec(const QString& path, const char* sql) {
    sqlite3* handle = opened(path);
    run(handle, sql);
    sqlite3_close(handle);
}

void flipByte(const QString& path, qint64 offset) {
    QByteArray content = bytes(path);
    demand(offset < content.size(), "a file too short to flip that byte");
    content[offset] = static_cast<char>(content.at(offset) ^ 0xff);
    write(path, content);
}

QByteArray bytes(const QString& path) {
    QFile file(path);
    demand(file.open(QIODevice::ReadOnly), "read");
    return file.readAll();
}

void write(const QString& path, const QByteArray& content) {
    QFile file(path);
    demand(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(), "write");
}

} // namespace ormiva::testing::MadeDatabases
