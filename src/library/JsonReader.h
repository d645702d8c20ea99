#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>

#include <exception>
#include <optional>
#include <type_traits>

namespace ormiva {

/// A content file that isn't of the required form. `message` names the key and what was expected there.
struct JsonFormatError final : std::exception {
    explicit JsonFormatError(QString text)
        : message(std::move(text)) {}
    const char* what() const noexcept override { return "ormiva::JsonFormatError"; }

    QString message;
};

/// Strict reading of one JSON value, which knows where in the file it stands. Further keys of an object are
/// ignored; an optional key that is null counts as left out; everything else that differs from what was asked
/// for throws JsonFormatError.
class JsonReader {
public:
    JsonReader(QJsonValue value, QString path)
        : m_value(std::move(value))
        , m_path(std::move(path)) {}

    /// The root object of a whole file.
    static JsonReader parse(const QByteArray& bytes);

    /// A required member of this object.
    JsonReader member(const QString& key) const;
    /// An optional member of this object; absent when it is missing or null.
    std::optional<JsonReader> optionalMember(const QString& key) const;

    QString text() const;
    bool boolean() const;
    QStringList texts() const;
    /// Each item of this list through `read(JsonReader)`.
    template <typename Read>
    auto list(Read read) const {
        QList<std::invoke_result_t<Read, JsonReader>> items;
        const QJsonArray array = toArray();
        items.reserve(array.size());
        for (qsizetype i = 0; i < array.size(); ++i)
            items.append(read(JsonReader(array.at(i), QStringLiteral("%1[%2]").arg(m_path).arg(i))));
        return items;
    }
    /// Each member of this object through `store(key, JsonReader)`.
    template <typename Store>
    void members(Store store) const {
        const QJsonObject object = toObject();
        for (auto it = object.begin(); it != object.end(); ++it)
            store(it.key(), JsonReader(it.value(), pathOf(it.key())));
    }

    /// Throws "{path}: expected {what}, found …".
    [[noreturn]] void fail(const QString& what) const;

private:
    QJsonObject toObject() const;
    QJsonArray toArray() const;
    QString pathOf(const QString& key) const;

    QJsonValue m_value;
    QString m_path;
};

} // namespace ormiva
