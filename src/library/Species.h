#pragma once

#include "CareField.h"
#include "SpeciesGroup.h"

#include <QMap>
#include <QObject>
#include <QStringList>

#include <optional>

namespace ormiva {

/// A text of the care library with the keys of the sources that back it, in the order in which they are
/// shown.
struct CitedText {
    QString t;
    QStringList s;

    friend bool operator==(const CitedText&, const CitedText&) = default;
};

/// One care sheet.
struct Species {
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString scientific MEMBER scientific)
    Q_PROPERTY(QString groupTitle READ groupTitle)
    Q_PROPERTY(QString art MEMBER art)
    Q_PROPERTY(QStringList palette MEMBER palette)
    Q_PROPERTY(QString summary MEMBER summary)

public:
    QString id; ///< stable; the pets' records keep it
    QString name;
    QString scientific;
    SpeciesGroup group = SpeciesGroup::Mammal;
    QString art;         ///< picks the drawing
    QStringList palette; ///< body colour, second colour: six hexadecimal digits with or without "#"
    QString summary;
    std::optional<QString> limited;  ///< present when the evidence is thin: the sentence that says so
    QMap<QString, CitedText> fields; ///< by `CareFieldInfo::id`; other keys are kept and never shown

    QString groupTitle() const { return info(group).title; }
    /// The section's text, empty when the sheet has none.
    CitedText field(CareField field) const;
    /// The keys that the fields cite, each once, in the order in which they are first met.
    QStringList sourceKeys() const;
    /// What search scans: name, scientific name, summary, limited and all 22 texts, a line each at least.
    QString allText() const;

    friend bool operator==(const Species&, const Species&) = default;
};

} // namespace ormiva
