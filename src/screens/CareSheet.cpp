#include "CareSheet.h"

#include "CareLibrary.h"
#include "OMColors.h"

namespace ormiva {

namespace {

QColor tint(CareField field) {
    switch (field) {
    case CareField::Avoid:
        return OMColors::alert();
    case CareField::Warning:
        return OMColors::soon();
    default:
        return Qt::transparent;
    }
}

QList<CareCard> makeCards(const Species& species) {
    QList<CareCard> cards;
    for (const CareFieldInfo& field : allCareFields()) {
        const CitedText text = species.field(field.field);
        cards.append({field.title, field.symbol, text.t, text.s, tint(field.field)});
    }
    return cards;
}

} // namespace

CareSheet::CareSheet(QObject* parent)
    : QObject(parent)
    , m_cards(makeCards({})) {}

void CareSheet::setSpeciesID(const QString& id) {
    if (m_speciesID == id)
        return;
    m_speciesID = id;
    m_species = CareLibrary::shared().species(id);
    m_cards = makeCards(species());
    Q_EMIT changed();
}

QString CareSheet::headerLine() const {
    if (!m_species)
        return {};
    return tr("%1 · %2 SOURCES")
        .arg(m_species->groupTitle().toUpper(), QString::number(m_species->sourceKeys().size()));
}

QString CareSheet::limited() const {
    return m_species ? m_species->limited.value_or(QString()) : QString();
}

CareCard CareSheet::redFlags() const {
    CareCard card = m_cards.at(static_cast<qsizetype>(CareField::RedFlags));
    card.tint = OMColors::emergency();
    return card;
}

QList<SheetSection> CareSheet::sections() const {
    QList<SheetSection> sections;
    for (const CareSection& section : careSections()) {
        SheetSection& shown = sections.emplaceBack(SheetSection{section.title.toUpper(), {}});
        for (const CareField field : section.fields)
            shown.cards.append(static_cast<int>(field));
    }
    return sections;
}

QList<SourceLine> CareSheet::sources() const {
    QList<SourceLine> lines;
    for (const QString& key : species().sourceKeys())
        if (const auto source = CareLibrary::shared().source(key))
            lines.append({tr("%1 — %2").arg(source->publisher, source->title),
                          tr("%1 · checked %2").arg(source->url, source->checked), source->url});
    return lines;
}

} // namespace ormiva
