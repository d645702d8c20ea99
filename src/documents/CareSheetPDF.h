#pragma once

#include "OMStore.h"

#include <QByteArray>
#include <QList>
#include <QStringList>

#include <optional>

/// The sheet to keep by the enclosure or to hand to a pet sitter: the pet's present state, what is due, and
/// the care library's own words with their sources. It lists no medicine.
namespace ormiva::CareSheetPDF {

/// A section of the library, under the heading that is printed.
struct Field {
    CareField field;
    QString heading;
};
/// In the order in which they are printed.
const QList<Field>& fields();

/// "VLK Ormiva by Ventrel — {web address}".
const QString& footer();

/// The finished document, with what is due and how long ago things were at `now`. Never fails: what is
/// missing is said in words, a species that the library doesn't hold too.
QByteArray make(const Pet& pet, OMStore& store, Instant now);

/// "{name} - care sheet.pdf".
QString fileName(const Pet& pet);

/// Saves a made-up leopard gecko with its records, all days relative to today. Throws the store's error.
Pet examplePet(OMStore& store);

/// Writes the example's care sheet to the path behind "--om-example-care-sheet" and gives the exit status: 0,
/// or 2 after a failure, which is printed. Nothing when the flag or its path is missing.
std::optional<int> handleExample(const QStringList& arguments);

} // namespace ormiva::CareSheetPDF
