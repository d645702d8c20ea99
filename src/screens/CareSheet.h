#pragma once

#include "KitTypes.h"

#include <QColor>
#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace ormiva {

/// A card of the care sheet: one field of the species.
struct CareCard {
    Q_GADGET
    QML_VALUE_TYPE(careCard)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QStringList keys MEMBER keys)
    Q_PROPERTY(QColor tint MEMBER tint)

public:
    QString title;
    QString symbol;
    QString text;
    QStringList keys; ///< of the sources
    QColor tint = Qt::transparent;

    friend bool operator==(const CareCard&, const CareCard&) = default;
};

/// A row of the card of sources.
struct SourceLine {
    Q_GADGET
    QML_VALUE_TYPE(sourceLine)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString detail MEMBER detail)
    Q_PROPERTY(QString url MEMBER url)

public:
    QString title;
    QString detail;
    QString url;

    friend bool operator==(const SourceLine&, const SourceLine&) = default;
};

/// A section of the care sheet: its heading, and the places of its cards in `CareSheet::cards`.
struct SheetSection {
    Q_GADGET
    QML_VALUE_TYPE(sheetSection)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QList<int> cards MEMBER cards)

public:
    QString title;
    QList<int> cards;
};

/// All that the care sheet of one species shows.
class CareSheet : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString speciesID READ speciesID WRITE setSpeciesID NOTIFY changed FINAL)
    Q_PROPERTY(bool found READ found NOTIFY changed FINAL)
    Q_PROPERTY(ormiva::Species species READ species NOTIFY changed FINAL)
    Q_PROPERTY(QString headerLine READ headerLine NOTIFY changed FINAL)
    Q_PROPERTY(QString limited READ limited NOTIFY changed FINAL)
    Q_PROPERTY(QList<ormiva::CareCard> cards READ cards NOTIFY changed FINAL)
    Q_PROPERTY(ormiva::CareCard redFlags READ redFlags NOTIFY changed FINAL)
    Q_PROPERTY(QList<ormiva::SheetSection> sections READ sections CONSTANT FINAL)
    Q_PROPERTY(QList<ormiva::SourceLine> sources READ sources NOTIFY changed FINAL)

public:
    explicit CareSheet(QObject* parent = nullptr);

    const QString& speciesID() const { return m_speciesID; }
    void setSpeciesID(const QString& id);
    /// False without a species, and for an id that the library doesn't know.
    bool found() const { return m_species.has_value(); }
    Species species() const { return m_species.value_or(Species()); }
    /// "REPTILES · 24 SOURCES": all keys that the sheet cites, those without a source included.
    QString headerLine() const;
    /// Empty when the evidence isn't thin.
    QString limited() const;
    /// One card for each field, in declared order.
    const QList<CareCard>& cards() const { return m_cards; }
    /// The card that stands ahead of all sections.
    CareCard redFlags() const;
    QList<SheetSection> sections() const;
    /// The known sources of the whole sheet, in the order in which they are first cited.
    QList<SourceLine> sources() const;

Q_SIGNALS:
    void changed();

private:
    QString m_speciesID;
    std::optional<Species> m_species;
    QList<CareCard> m_cards;
};

} // namespace ormiva
