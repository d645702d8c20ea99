#include "CareLibrary.h"

#include "ContentFiles.h"
#include "JsonReader.h"

#include <QCollator>
#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace ormiva {

namespace {

/// Reads and decodes one file with `decode`; a failure becomes a line of `problems`.
template <typename Decode>
auto readFile(const QString& path, Decode decode, QStringList& problems)
    -> std::optional<decltype(decode(QByteArray()))> {
    const auto report = [&](const QString& error) {
        problems.append(path.section(u'/', -1) + QStringLiteral(": ") + error);
        return std::nullopt;
    };
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return report(file.errorString());
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return report(file.errorString());
    try {
        return decode(bytes);
    } catch (const JsonFormatError& error) {
        return report(error.message);
    }
}

/// The names in `folder` with the extension "json", in the order of their code points.
QStringList jsonFileNames(const QString& folder) {
    QStringList names =
        QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    const QString extension = QStringLiteral(".json");
    names.removeIf([&](const QString& name) { return !name.endsWith(extension) || name == extension; });
    // UTF-8 bytes sort as code points do; UTF-16 units do not.
    std::sort(names.begin(), names.end(),
              [](const QString& a, const QString& b) { return a.toUtf8() < b.toUtf8(); });
    return names;
}

[[noreturn]] void stopForDuplicateKey(const QString& key) {
    std::fprintf(stderr, "Duplicate values for key: '%s'\n", key.toUtf8().constData());
    std::abort();
}

} // namespace

const CareLibrary& CareLibrary::shared() {
    static const CareLibrary library;
    return library;
}

const QString& CareLibrary::dataFolder() {
    static const QString folder = [] {
        const QString chosen = qEnvironmentVariable("OM_DATA_DIR");
        return chosen.isEmpty()
                   ? QCoreApplication::applicationDirPath() + QStringLiteral("/../share/ormiva/data")
                   : chosen;
    }();
    return folder;
}

CareLibrary::CareLibrary(QString folder, QByteArray indexTable)
    : m_folder(std::move(folder))
    , m_indexTable(std::move(indexTable)) {
    reload();
}

void CareLibrary::reload() {
    m_loadProblems.clear();
    loadSpecies();
    loadSources();
    loadSymptoms();
    m_index.reset();
    m_index = std::make_unique<SpeciesIndex>(m_species, m_indexTable);
}

void CareLibrary::loadSpecies() {
    const QString folder = m_folder + QStringLiteral("/species");
    QList<Species> loaded;
    for (const QString& name : jsonFileNames(folder))
        if (auto animal = readFile(folder + u'/' + name, ContentFiles::readSpecies, m_loadProblems))
            loaded.append(*std::move(animal));
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::stable_sort(loaded.begin(), loaded.end(), [&](const Species& a, const Species& b) {
        return a.group != b.group ? a.group < b.group : collator.compare(a.name, b.name) < 0;
    });
    m_species = std::move(loaded);
}

void CareLibrary::loadSources() {
    const auto file =
        readFile(m_folder + QStringLiteral("/sources.json"), ContentFiles::readSources, m_loadProblems);
    if (!file)
        return;
    QHash<QString, SourceRef> byKey;
    for (const SourceRef& source : file->sources) {
        if (byKey.contains(source.key))
            stopForDuplicateKey(source.key);
        byKey.insert(source.key, source);
    }
    m_sources = std::move(byKey);
    m_sourcesChecked = file->checked;
}

void CareLibrary::loadSymptoms() {
    auto file =
        readFile(m_folder + QStringLiteral("/symptoms.json"), ContentFiles::readSymptoms, m_loadProblems);
    if (!file)
        return;
    m_symptoms = std::move(file->symptoms);
    m_rules = std::move(file->rules);
}

std::optional<Species> CareLibrary::species(const QString& id) const {
    const auto found = std::find_if(m_species.begin(), m_species.end(),
                                    [&](const Species& animal) { return animal.id == id; });
    return found == m_species.end() ? std::nullopt : std::optional(*found);
}

std::optional<SourceRef> CareLibrary::source(const QString& key) const {
    const auto found = m_sources.find(key);
    return found == m_sources.end() ? std::nullopt : std::optional(*found);
}

QList<SymptomDef> CareLibrary::symptoms(const Species& species) const {
    QList<SymptomDef> offered;
    std::copy_if(m_symptoms.begin(), m_symptoms.end(), std::back_inserter(offered),
                 [&](const SymptomDef& sign) { return sign.groups.contains(species.group); });
    return offered;
}

QList<Species> CareLibrary::search(const QString& query) const {
    const QStringList terms = searchTerms(query);
    if (terms.isEmpty())
        return m_species;
    QList<Species> found;
    if (usesFTS5()) {
        for (const QString& id : m_index->search(terms))
            if (auto animal = species(id))
                found.append(*std::move(animal));
        return found;
    }
    std::copy_if(m_species.begin(), m_species.end(), std::back_inserter(found), [&](const Species& animal) {
        const QString text = animal.allText().toLower();
        return std::all_of(terms.begin(), terms.end(),
                           [&](const QString& term) { return text.contains(term); });
    });
    return found;
}

QStringList searchTerms(const QString& query) {
    QStringList terms;
    QString term;
    const auto finish = [&] {
        if (!term.isEmpty())
            terms.append(term);
        term.clear();
    };
    for (const char32_t c : query.toLower().toStdU32String()) {
        // A combining mark belongs to the letter before it.
        if (QChar::isLetterOrNumber(c) || (QChar::isMark(c) && !term.isEmpty()))
            term += QString::fromUcs4(&c, 1);
        else
            finish();
    }
    finish();
    return terms;
}

} // namespace ormiva
