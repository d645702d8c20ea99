#include "LibraryModel.h"

#include "CareLibrary.h"

#include <algorithm>

namespace ormiva {

LibraryModel::LibraryModel(QObject* parent)
    : QAbstractListModel(parent) {
    find();
}

void LibraryModel::setQuery(const QString& query) {
    if (m_query == query)
        return;
    m_query = query;
    Q_EMIT queryChanged();
    find();
}

void LibraryModel::setGroup(const QString& group) {
    if (m_group == group)
        return;
    m_group = group;
    Q_EMIT groupChanged();
    find();
}

QString LibraryModel::countLine() const {
    if (m_query.isEmpty())
        return tr("%1 species").arg(count());
    return count() == 1 ? tr("%1 match").arg(count()) : tr("%1 matches").arg(count());
}

QList<LibraryFilter> LibraryModel::filters() const {
    QList<LibraryFilter> filters = {{QString(), tr("All")}};
    for (const SpeciesGroupInfo& group : allSpeciesGroups())
        filters.append({group.id, group.title});
    return filters;
}

int LibraryModel::rowOf(const QString& speciesID) const {
    const auto found = std::find_if(m_results.begin(), m_results.end(),
                                    [&](const Species& species) { return species.id == speciesID; });
    return found == m_results.end() ? -1 : static_cast<int>(found - m_results.begin());
}

QString LibraryModel::idAt(int row) const {
    return row >= 0 && row < m_results.size() ? m_results.at(row).id : QString();
}

int LibraryModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant LibraryModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Species& species = m_results.at(index.row());
    switch (role) {
    case SpeciesIDRole:
        return species.id;
    case NameRole:
        return species.name;
    case ScientificRole:
        return species.scientific;
    case ArtRole:
        return species.art;
    case PaletteRole:
        return species.palette;
    default:
        return {};
    }
}

QHash<int, QByteArray> LibraryModel::roleNames() const {
    return {{SpeciesIDRole, "speciesID"},
            {NameRole, "name"},
            {ScientificRole, "scientific"},
            {ArtRole, "art"},
            {PaletteRole, "palette"}};
}

void LibraryModel::find() {
    QList<Species> found = CareLibrary::shared().search(m_query);
    if (const auto only = speciesGroup(m_group))
        found.removeIf([&](const Species& species) { return species.group != *only; });
    if (found == m_results) // The list keeps its place when nothing changes.
        return Q_EMIT resultsChanged();
    beginResetModel();
    m_results = std::move(found);
    endResetModel();
    Q_EMIT resultsChanged();
}

} // namespace ormiva
