#pragma once

#include "CareLibrary.h"
#include "Printers.h"

#include <QMap>
#include <QStringList>

namespace ormiva::testing {

/// What ships in data/, loaded once.
const CareLibrary& shipped();

/// A text of the content and where it stands, for the messages of tests: "rabbit diet", "rule rf-collapse".
struct PlacedText {
    QString place;
    QString text;
};
/// The sections of all species, with the summaries and the remarks on thin evidence.
QList<PlacedText> sheetTexts();
/// The labels of the signs, and the causes and the advice of the rules.
QList<PlacedText> symptomTexts();

/// A fact that was read, and where.
struct Fact {
    QString text;
    QStringList s;
};
/// A page that was read.
struct Page {
    SourceRef source;
    QString read;     ///< the day of the first reading
    QString verified; ///< the day of the second, or empty
};
/// A file of research/: the pages, and the facts by section or rule in the order of their use.
struct Evidence {
    QString id;
    QList<Page> pages;
    QMap<QString, QList<Fact>> facts;

    /// The sources of a section's facts in the order of first use.
    QStringList keys(const QString& section) const;
};
/// Fails the test when the file can't be read.
Evidence evidence(const QString& id);

/// True when the section says in words that the sources are silent.
bool saysSilent(const QString& text);

} // namespace ormiva::testing
