#pragma once

#include "OMStore.h"

#include <QList>
#include <QString>
#include <QStringList>

/// A pet's records as one spreadsheet table of five columns: section, date, item, detail, notes.
namespace ormiva::OMCSV {

/// The text as one field: in quotes when one of its characters, as a reader sees them, is a comma, a double
/// quote, a line feed or a carriage return. A pair of the last two is one character, and none of these.
QString field(const QString& text);
/// The fields with commas between them, without a line ending.
QString line(const QStringList& fields);
/// The rows of a table. Quotes may open anywhere in a field; carriage returns outside of quotes are dropped.
QList<QStringList> parse(const QString& text);

/// All records of a pet, lines ended by carriage return and line feed. To be written as UTF-8 without a mark.
QString petRecords(const Pet& pet, OMStore& store);
/// "{name} - records.csv".
QString fileName(const Pet& pet);

} // namespace ormiva::OMCSV
