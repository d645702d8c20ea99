// The record store against the least that could do its work.

#include "OMStore.h"
#include "Pairs.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <sqlite3.h>

namespace ormiva::bench {

namespace {

sqlite3* opened(const QString& path) {
    sqlite3* handle = nullptr;
    if (sqlite3_open(path.toUtf8().constData(), &handle) != SQLITE_OK)
        std::abort();
    return handle;
}

/// A store with one pet of row id 1.
void makeStore(const QString& path) {
    OMStore store(path);
    store.db().exec(QStringLiteral("INSERT INTO pet (name, species_id) VALUES ('Rex', 'rabbit')"));
}

void openBare(const QString& path) {
    sqlite3* handle = opened(path);
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(handle, "PRAGMA user_version", -1, &statement, nullptr);
    if (sqlite3_step(statement) != SQLITE_ROW || sqlite3_column_int(statement, 0) != 1)
        std::abort();
    sqlite3_finalize(statement);
    sqlite3_close(handle);
}

/// A connection with a prepared insert, under the pragmas of the store.
struct BareInsert {
    explicit BareInsert(const QString& path)
        : handle(opened(path)) {
        sqlite3_exec(handle, "PRAGMA foreign_keys = ON; PRAGMA synchronous = EXTRA", nullptr, nullptr,
                     nullptr);
        sqlite3_prepare_v2(handle, "INSERT INTO weight (pet_id, day, grams, note) VALUES (1, ?, ?, '')", -1,
                           &statement, nullptr);
    }
    void run() const {
        sqlite3_bind_text(statement, 1, "2026-03-07", -1, SQLITE_STATIC);
        sqlite3_bind_double(statement, 2, 421);
        if (sqlite3_step(statement) != SQLITE_DONE)
            std::abort();
        sqlite3_reset(statement);
    }

    sqlite3* handle;
    sqlite3_stmt* statement = nullptr;
};

} // namespace

void addStorePairs() {
    static const QTemporaryDir folder;
    static const QString path = folder.filePath(QStringLiteral("Pets.sqlite"));
    makeStore(path);
    addPair(
        "open an existing store", 1.5, [] { benchmark::DoNotOptimize(OMStore(path)); },
        [] { openBare(path); });

    static const QString savedPath = folder.filePath(QStringLiteral("saved.sqlite"));
    static const QString barePath = folder.filePath(QStringLiteral("bare.sqlite"));
    makeStore(savedPath);
    makeStore(barePath);
    static OMStore store(savedPath);
    static const BareInsert bare(barePath);
    static WeightEntry entry = {.id = 0, .petID = 1, .day = {2026, 3, 7}, .grams = 421, .note = {}};
    addPair(
        "save a weight", 1.3,
        [] {
            entry.id = 0;
            store.save(entry);
        },
        [] { bare.run(); });
}

} // namespace ormiva::bench
