#include "JsonReader.h"

#include <QJsonDocument>

namespace ormiva {

namespace {

QString described(const QJsonValue& value) {
    switch (value.type()) {
    case QJsonValue::Null:
        return QStringLiteral("null");
    case QJsonValue::Bool:
        return QStringLiteral("a boolean");
    case QJsonValue::Double:
        return QStringLiteral("a number");
    case QJsonValue::String:
        return QStringLiteral("“%1”").arg(value.toString());
    case QJsonValue::Array:
        return QStringLiteral("a list");
    case QJsonValue::Object:
        return QStringLiteral("an object");
    case QJsonValue::Undefined:
        break;
    }
    return QStringLiteral("nothing");
}

} // namespace

JsonReader JsonReader::parse(const QByteArray& bytes) {
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError)
        throw JsonFormatError(
            QStringLiteral("not valid JSON: %1 at byte %2").arg(error.errorString()).arg(error.offset));
    if (!document.isObject())
        throw JsonFormatError(QStringLiteral("the file: expected an object, found a list"));
    return {document.object(), {}};
}

JsonReader JsonReader::member(const QString& key) const {
    return {toObject().value(key), pathOf(key)};
}

std::optional<JsonReader> JsonReader::optionalMember(const QString& key) const {
    JsonReader reader = member(key);
    if (reader.m_value.isUndefined() || reader.m_value.isNull())
        return std::nullopt;
    return reader;
}

QString JsonReader::text() const {
    if (!m_value.isString())
        fail(QStringLiteral("a text"));
    return m_value.toString();
}

bool JsonReader::boolean() const {
    if (!m_value.isBool())
        fail(QStringLiteral("a boolean"));
    return m_value.toBool();
}

QStringList JsonReader::texts() const {
    return list([](const JsonReader& item) { return item.text(); });
}

void JsonReader::fail(const QString& what) const {
    throw JsonFormatError(
        QStringLiteral("%1: expected %2, found %3")
            .arg(m_path.isEmpty() ? QStringLiteral("the file") : m_path, what, described(m_value)));
}

QJsonObject JsonReader::toObject() const {
    if (!m_value.isObject())
        fail(QStringLiteral("an object"));
    return m_value.toObject();
}

QJsonArray JsonReader::toArray() const {
    if (!m_value.isArray())
        fail(QStringLiteral("a list"));
    return m_value.toArray();
}

QString JsonReader::pathOf(const QString& key) const {
    return m_path.isEmpty() ? key : m_path + u'.' + key;
}

} // namespace ormiva
