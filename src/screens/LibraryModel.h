#pragma once

#include "Species.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace ormiva {

/// A filter chip of the library: a group, or all of them.
struct LibraryFilter {
    Q_GADGET
    QML_VALUE_TYPE(libraryFilter)
    Q_PROPERTY(QString group MEMBER group)
    Q_PROPERTY(QString title MEMBER title)

public:
    QString group; ///< the id of a species group; empty means all
    QString title;
};

/// The list of the library screen: what the search finds, narrowed to a group of animals.
class LibraryModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged FINAL)
    Q_PROPERTY(QString group READ group WRITE setGroup NOTIFY groupChanged FINAL)
    Q_PROPERTY(int count READ count NOTIFY resultsChanged FINAL)
    Q_PROPERTY(QString countLine READ countLine NOTIFY resultsChanged FINAL)
    Q_PROPERTY(QList<ormiva::LibraryFilter> filters READ filters CONSTANT FINAL)

public:
    enum Role { SpeciesIDRole = Qt::UserRole, NameRole, ScientificRole, ArtRole, PaletteRole };

    explicit LibraryModel(QObject* parent = nullptr);

    const QString& query() const { return m_query; }
    void setQuery(const QString& query);
    /// The id of the chosen group, empty for all.
    const QString& group() const { return m_group; }
    void setGroup(const QString& group);

    const QList<Species>& results() const { return m_results; }
    int count() const { return static_cast<int>(m_results.size()); }
    /// "40 species", or with a query "1 match", "2 matches".
    QString countLine() const;
    QList<LibraryFilter> filters() const;
    /// The row of that species, -1 when it isn't among the results.
    Q_INVOKABLE int rowOf(const QString& speciesID) const;
    /// The id of the species in that row, empty when there is none.
    Q_INVOKABLE QString idAt(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void queryChanged();
    void groupChanged();
    void resultsChanged();

private:
    void find();

    QString m_query;
    QString m_group;
    QList<Species> m_results;
};

} // namespace ormiva
