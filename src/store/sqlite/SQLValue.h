#pragma once

#include <QByteArray>
#include <QString>

#include <variant>

namespace ormiva {

struct SQLNull {
    friend bool operator==(SQLNull, SQLNull) = default;
};

/// A value of a result row: integer, real, text, blob or null.
using SQLValue = std::variant<qint64, double, QString, QByteArray, SQLNull>;

/// Case and payload in print: `int(3)`, `real(421.5)`, `text("Gecko")`, `blob(2048 bytes)`, `null`. Quotes
/// and backslashes of a text are escaped, so two values print alike only when they are equal, blobs of one
/// length aside.
QString printable(const SQLValue& value);

} // namespace ormiva
