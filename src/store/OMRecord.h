#pragma once

#include "OMDay.h"
#include "SQLiteDB.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <concepts>
#include <optional>

namespace ormiva {

class OMStore;

/// What the store asks of a record: its table, the columns it writes (always without `id`) with a value for
/// each, how to make it of a row, and its own validation. Reading a row never fails: every damaged value has
/// a replacement.
template <typename T>
concept OMRecord = requires(T record, const T constant, const SQLRow& row, OMStore& store) {
    { T::table() } -> std::convertible_to<QString>;
    { T::columns() } -> std::convertible_to<QStringList>;
    { record.id } -> std::convertible_to<qint64>;
    { constant.columnValues() } -> std::convertible_to<SQLArguments>;
    { T::fromRow(row) } -> std::same_as<T>;
    /// Throws `OMError::invalid` with a sentence for the user at the first check that fails.
    { constant.validate(store) } -> std::same_as<void>;
};

/// The parts that the records' reading, writing and validation share.
namespace Records {

/// A required day: today when the column doesn't hold one, so a damaged date never loses the row.
OMDay requiredDay(const SQLRow& row, const QString& column);
std::optional<OMDay> optionalDay(const SQLRow& row, const QString& column);
SQLArgument written(const std::optional<OMDay>& day);

/// Without the white space at both ends, in Unicode's sense, the no-break space included.
QString trimmed(const QString& text);
bool isBlank(const QString& text);
/// Throws `OMError::invalid(message)` unless `holds`.
void require(bool holds, const QString& message);
/// Throws "Please choose a pet." unless the store holds exactly one pet of that id.
void requirePet(OMStore& store, qint64 petID);

/// For QML: the day, or undefined.
QVariant toVariant(const std::optional<OMDay>& day);

} // namespace Records

} // namespace ormiva
