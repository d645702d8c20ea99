#pragma once

#include "TemporaryFolder.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

namespace ormiva::testing {

/// The content files' objects, each complete and valid, for a test to use as they are or to spoil.
namespace Json {

QByteArray bytes(const QJsonObject& object);
QJsonArray list(const QStringList& texts);
QJsonObject cited(const QString& text, const QStringList& keys = {QStringLiteral("src-a")});
/// Without any section in `fields`.
QJsonObject species(const QString& id, const QString& name, const QString& group = QStringLiteral("mammal"));
QJsonObject source(const QString& key);
QJsonObject sourceFile(const QList<QJsonObject>& sources);
QJsonObject symptom(const QString& id, const QStringList& groups);
QJsonObject rule(const QString& id, const QStringList& when, const QString& urgency);
QJsonObject symptomFile(const QList<QJsonObject>& symptoms, const QList<QJsonObject>& rules);
/// `object` with one member set, or without it when `value` is undefined.
QJsonObject with(QJsonObject object, const QString& key, const QJsonValue& value);

} // namespace Json

/// A content folder in the making; empty at first.
class ContentFolder {
public:
    QString path() const { return m_folder.path(); }
    void species(const QString& fileName, const QByteArray& json) const;
    void species(const QString& fileName, const QJsonObject& json) const {
        species(fileName, Json::bytes(json));
    }
    void sources(const QByteArray& json) const;
    void symptoms(const QByteArray& json) const;
    /// One source and one sign with its rule, so that both files load.
    void addValidLists() const;
    void remove(const QString& name) const;

private:
    TemporaryFolder m_folder;
};

/// A small valid content folder: the species "leopard-gecko", "rabbit" and "axolotl".
void writeExampleContent(const QString& folder);

} // namespace ormiva::testing
