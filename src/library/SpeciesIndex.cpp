#include "SpeciesIndex.h"

#include <sqlite3.h>

namespace ormiva {

namespace {

void bindText(sqlite3_stmt* statement, int index, const QString& text) {
    const QByteArray utf8 = text.toUtf8();
    sqlite3_bind_text(statement, index, utf8.constData(), static_cast<int>(utf8.size()), SQLITE_TRANSIENT);
}

} // namespace

const QByteArray SpeciesIndex::tableStatement =
    QByteArrayLiteral("CREATE VIRTUAL TABLE sp USING fts5(sid UNINDEXED, name, scientific, grp, body, "
                      "tokenize='porter unicode61 remove_diacritics 2')");

void SpeciesIndex::Closer::operator()(sqlite3* handle) const {
    sqlite3_close_v2(handle);
}

SpeciesIndex::SpeciesIndex(const QList<Species>& species, const QByteArray& table) {
    sqlite3* handle = nullptr;
    const int opened = sqlite3_open(":memory:", &handle);
    m_fts.reset(handle);
    if (opened != SQLITE_OK || !handle)
        return;
    m_usable = sqlite3_exec(handle, table.constData(), nullptr, nullptr, nullptr) == SQLITE_OK;
    if (m_usable)
        fill(species);
}

/// Result codes are not examined: a row that fails to go in is simply not found later.
void SpeciesIndex::fill(const QList<Species>& species) {
    sqlite3_stmt* insert = nullptr;
    sqlite3_prepare_v2(m_fts.get(), "INSERT INTO sp(sid, name, scientific, grp, body) VALUES (?,?,?,?,?)", -1,
                       &insert, nullptr);
    sqlite3_exec(m_fts.get(), "BEGIN", nullptr, nullptr, nullptr);
    for (const Species& animal : species) {
        bindText(insert, 1, animal.id);
        bindText(insert, 2, animal.name);
        bindText(insert, 3, animal.scientific);
        bindText(insert, 4, animal.groupTitle());
        bindText(insert, 5, animal.allText());
        sqlite3_step(insert);
        sqlite3_reset(insert);
    }
    sqlite3_exec(m_fts.get(), "COMMIT", nullptr, nullptr, nullptr);
    sqlite3_finalize(insert);
}

QStringList SpeciesIndex::search(const QStringList& terms) const {
    // Quoted prefixes: no word of the user's can be an operator of FTS5.
    const QString match = u'"' + terms.join(QStringLiteral("\"* AND \"")) + QStringLiteral("\"*");
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(m_fts.get(),
                           "SELECT sid FROM sp WHERE sp MATCH ? ORDER BY bm25(sp, 0.0, 12.0, 6.0, 2.0, 1.0)",
                           -1, &statement, nullptr) != SQLITE_OK)
        return {};
    bindText(statement, 1, match);
    QStringList ids;
    while (sqlite3_step(statement) == SQLITE_ROW)
        ids.append(QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0))));
    sqlite3_finalize(statement);
    return ids;
}

} // namespace ormiva
