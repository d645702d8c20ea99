#pragma once

#include "SourceRef.h"
#include "Species.h"
#include "SpeciesIndex.h"
#include "SymptomData.h"

#include <QHash>
#include <QList>
#include <QStringList>

#include <optional>

namespace ormiva {

/// All care knowledge, read once from the content folder and kept in memory. It never fails to load: what
/// could not be read stands in `loadProblems`. One thing alone stops the process, with a message: a source
/// key that occurs twice, which shipped content must never have.
class CareLibrary {
public:
    /// The library of the run, built at its first use.
    static const CareLibrary& shared();
    /// `OM_DATA_DIR` when it is set and not empty, else the folder "data" of the resource folder
    /// (`../share/ormiva` from the executable). Computed once.
    static const QString& dataFolder();

    /// Loads `folder`. `indexTable` makes the table of the full-text index.
    explicit CareLibrary(QString folder = dataFolder(), QByteArray indexTable = SpeciesIndex::tableStatement);

    /// Loads again. Lists whose file can't be read any more stay as they were, the species aside.
    void reload();

    /// By group, then by name as the user's locale sorts, case ignored.
    const QList<Species>& species() const { return m_species; }
    /// The first species with that id.
    std::optional<Species> species(const QString& id) const;
    const QHash<QString, SourceRef>& sources() const { return m_sources; }
    std::optional<SourceRef> source(const QString& key) const;
    /// The day on which the sources were last checked, as the file has it.
    const QString& sourcesChecked() const { return m_sourcesChecked; }
    const QList<SymptomDef>& symptoms() const { return m_symptoms; }
    /// The signs that are offered for this species, in file order.
    QList<SymptomDef> symptoms(const Species& species) const;
    const QList<SymptomRule>& rules() const { return m_rules; }
    /// "{file name}: {error}" for each file that could not be read.
    const QStringList& loadProblems() const { return m_loadProblems; }

    /// The sheets that hold all words of `query`, best match first. A query without letters and numbers lists
    /// every species. Without a full-text index the words are looked for as they stand, in library order.
    QList<Species> search(const QString& query) const;
    bool usesFTS5() const { return m_index && m_index->usable(); }

private:
    void loadSpecies();
    void loadSources();
    void loadSymptoms();

    QString m_folder;
    QByteArray m_indexTable;
    QList<Species> m_species;
    QHash<QString, SourceRef> m_sources;
    QString m_sourcesChecked;
    QList<SymptomDef> m_symptoms;
    QList<SymptomRule> m_rules;
    QStringList m_loadProblems;
    std::unique_ptr<SpeciesIndex> m_index;
};

/// The words of a query: lower-cased, split at everything that is neither letter nor number.
QStringList searchTerms(const QString& query);

} // namespace ormiva
