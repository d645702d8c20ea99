#pragma once

#include "SQLValue.h"

#include <map>
#include <optional>

namespace ormiva {

/// One row of a result. Columns are read through the accessors; an absent column reads like a null one.
struct SQLRow {
    std::map<QString, SQLValue> values;

    /// Integers as they are, reals truncated towards zero, texts that are a base-10 integer.
    std::optional<qint64> integer(const QString& name) const;
    /// Reals, integers converted, texts that are a decimal number.
    std::optional<double> real(const QString& name) const;
    /// Texts, and numbers in decimal form (421.0 gives "421.0").
    std::optional<QString> string(const QString& name) const;
    /// As `string`, with the empty string for absent.
    QString str(const QString& name) const;
    /// Blobs only.
    std::optional<QByteArray> data(const QString& name) const;
    /// True when `integer` is present and not zero.
    bool boolean(const QString& name) const;

    friend bool operator==(const SQLRow&, const SQLRow&) = default;

private:
    const SQLValue& value(const QString& name) const;
};

/// The integer reading of one value, as of `SQLRow::integer`.
std::optional<qint64> integerOf(const SQLValue& value);

} // namespace ormiva
