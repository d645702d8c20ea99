#pragma once

#include "Species.h"

#include <QByteArray>
#include <QList>

#include <memory>

struct sqlite3;

namespace ormiva {

/// The in-memory full-text index of the care sheets, ranked so that a name beats a passing mention.
class SpeciesIndex {
public:
    static const QByteArray tableStatement;

    /// Indexes `species`. `table` is the statement that makes the table; where it fails, as with a SQLite
    /// without FTS5, the index is not usable.
    explicit SpeciesIndex(const QList<Species>& species, const QByteArray& table = tableStatement);

    bool usable() const { return m_usable; }
    /// The ids of the sheets that hold a word beginning with each of `terms`, best match first. Terms hold
    /// letters and numbers only. A failure of SQLite ends the list.
    QStringList search(const QStringList& terms) const;

private:
    struct Closer {
        void operator()(sqlite3* handle) const;
    };
    void fill(const QList<Species>& species);

    std::unique_ptr<sqlite3, Closer> m_fts;
    bool m_usable = false;
};

} // namespace ormiva
