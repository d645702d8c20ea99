// The care library against the least that could do its work. The shipped content, scaled up to 40 species.

#include "CareLibrary.h"
#include "ContentFiles.h"
#include "Pairs.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <memory>
#include <sqlite3.h>

namespace ormiva::bench {

namespace {

constexpr int speciesCount = 40;

QByteArray read(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        std::abort();
    return file.readAll();
}

void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        std::abort();
}

/// A content folder of 40 species, made of copies of the shipped ones under new ids, and all its bytes.
struct ScaledContent {
    ScaledContent() {
        const QString shipped = QStringLiteral(ORMIVA_CONTENT);
        const QDir folder(shipped + QStringLiteral("/species"));
        const QStringList names = folder.entryList({QStringLiteral("*.json")}, QDir::Files);
        QDir(root.path()).mkdir(QStringLiteral("species"));
        for (int i = 0; i < speciesCount; ++i) {
            QJsonObject species =
                QJsonDocument::fromJson(read(folder.filePath(names.at(i % names.size())))).object();
            if (i >= names.size())
                species[QStringLiteral("id")] = QStringLiteral("copy-%1").arg(i);
            const QByteArray bytes = QJsonDocument(species).toJson();
            write(root.filePath(QStringLiteral("species/%1.json").arg(i)), bytes);
            files.append(bytes);
        }
        for (const QString& name : {QStringLiteral("sources.json"), QStringLiteral("symptoms.json")}) {
            const QByteArray bytes = read(shipped + u'/' + name);
            write(root.filePath(name), bytes);
            files.append(bytes);
        }
    }

    QTemporaryDir root;
    QList<QByteArray> files;
};

using Database = std::unique_ptr<sqlite3, decltype(&sqlite3_close)>;

struct Row {
    QByteArray id, name, scientific, group, body;
};

Database bareIndex(const QList<Row>& rows) {
    sqlite3* handle = nullptr;
    sqlite3_open(":memory:", &handle);
    sqlite3_exec(handle, SpeciesIndex::tableStatement.constData(), nullptr, nullptr, nullptr);
    sqlite3_stmt* insert = nullptr;
    sqlite3_prepare_v2(handle, "INSERT INTO sp(sid, name, scientific, grp, body) VALUES (?,?,?,?,?)", -1,
                       &insert, nullptr);
    sqlite3_exec(handle, "BEGIN", nullptr, nullptr, nullptr);
    for (const Row& row : rows) {
        int index = 0;
        for (const QByteArray* text : {&row.id, &row.name, &row.scientific, &row.group, &row.body})
            sqlite3_bind_text(insert, ++index, text->constData(), static_cast<int>(text->size()),
                              SQLITE_TRANSIENT);
        sqlite3_step(insert);
        sqlite3_reset(insert);
    }
    sqlite3_exec(handle, "COMMIT", nullptr, nullptr, nullptr);
    sqlite3_finalize(insert);
    return {handle, sqlite3_close};
}

int bareSearch(sqlite3* handle, const char* match) {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(handle,
                       "SELECT sid FROM sp WHERE sp MATCH ? ORDER BY bm25(sp, 0.0, 12.0, 6.0, 2.0, 1.0)", -1,
                       &statement, nullptr);
    sqlite3_bind_text(statement, 1, match, -1, SQLITE_TRANSIENT);
    int length = 0;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        benchmark::DoNotOptimize(sqlite3_column_text(statement, 0));
        ++length;
    }
    sqlite3_finalize(statement);
    return length;
}

} // namespace

void addLibraryPairs() {
    static const ScaledContent content;
    static const QByteArray noIndex = "no index";
    addPair(
        "read and decode 40 species, sources, signs", 2.5,
        [] { benchmark::DoNotOptimize(CareLibrary(content.root.path(), noIndex)); },
        [] {
            for (const QByteArray& bytes : content.files)
                benchmark::DoNotOptimize(QJsonDocument::fromJson(bytes));
        });

    static const CareLibrary library(content.root.path());
    static const QList<Row> rows = [] {
        QList<Row> made;
        for (const Species& animal : library.species())
            made.append({animal.id.toUtf8(), animal.name.toUtf8(), animal.scientific.toUtf8(),
                         animal.groupTitle().toUtf8(), animal.allText().toUtf8()});
        return made;
    }();
    addPair(
        "build the index", 1.1, [] { benchmark::DoNotOptimize(SpeciesIndex(library.species())); },
        [] { benchmark::DoNotOptimize(bareIndex(rows)); });

    static const Database index = bareIndex(rows);
    static const QString query = QStringLiteral("stuck shed");
    static constexpr const char* match = R"("stuck"* AND "shed"*)";
    if (library.search(query).size() != bareSearch(index.get(), match))
        std::abort();
    addPair(
        "one search", 1.2, [] { benchmark::DoNotOptimize(library.search(query)); },
        [] { benchmark::DoNotOptimize(bareSearch(index.get(), match)); });
}

} // namespace ormiva::bench
