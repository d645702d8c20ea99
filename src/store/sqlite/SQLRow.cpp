#include "SQLRow.h"

#include "Numbers.h"

namespace ormiva {

std::optional<qint64> integerOf(const SQLValue& value) {
    if (const auto* integer = std::get_if<qint64>(&value))
        return *integer;
    if (const auto* real = std::get_if<double>(&value))
        return Numbers::truncated(*real);
    if (const auto* text = std::get_if<QString>(&value))
        return Numbers::parseInteger(*text);
    return std::nullopt;
}

const SQLValue& SQLRow::value(const QString& name) const {
    static const SQLValue absent = SQLNull();
    const auto found = values.find(name);
    return found == values.end() ? absent : found->second;
}

std::optional<qint64> SQLRow::integer(const QString& name) const {
    return integerOf(value(name));
}

std::optional<double> SQLRow::real(const QString& name) const {
    const SQLValue& v = value(name);
    if (const auto* integer = std::get_if<qint64>(&v))
        return static_cast<double>(*integer);
    if (const auto* real = std::get_if<double>(&v))
        return *real;
    if (const auto* text = std::get_if<QString>(&v))
        return Numbers::parseReal(*text);
    return std::nullopt;
}

std::optional<QString> SQLRow::string(const QString& name) const {
    const SQLValue& v = value(name);
    if (const auto* integer = std::get_if<qint64>(&v))
        return QString::number(*integer);
    if (const auto* real = std::get_if<double>(&v))
        return Numbers::shortest(*real);
    if (const auto* text = std::get_if<QString>(&v))
        return *text;
    return std::nullopt;
}

QString SQLRow::str(const QString& name) const {
    return string(name).value_or(QString());
}

std::optional<QByteArray> SQLRow::data(const QString& name) const {
    const auto* blob = std::get_if<QByteArray>(&value(name));
    return blob ? std::optional(*blob) : std::nullopt;
}

bool SQLRow::boolean(const QString& name) const {
    return integer(name).value_or(0) != 0;
}

} // namespace ormiva
