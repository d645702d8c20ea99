#include "ContentFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <stdexcept>

namespace ormiva::testing {

namespace Json {

namespace {

QJsonArray array(const QList<QJsonObject>& objects) {
    QJsonArray array;
    for (const QJsonObject& object : objects)
        array.append(object);
    return array;
}

} // namespace

QByteArray bytes(const QJsonObject& object) {
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QJsonArray list(const QStringList& texts) {
    return QJsonArray::fromStringList(texts);
}

QJsonObject cited(const QString& text, const QStringList& keys) {
    return {{QStringLiteral("t"), text}, {QStringLiteral("s"), list(keys)}};
}

QJsonObject species(const QString& id, const QString& name, const QString& group) {
    return {{QStringLiteral("id"), id},
            {QStringLiteral("name"), name},
            {QStringLiteral("scientific"), QStringLiteral("Animal exemplum")},
            {QStringLiteral("group"), group},
            {QStringLiteral("art"), QStringLiteral("rabbit")},
            {QStringLiteral("palette"), list({QStringLiteral("A1B2C3"), QStringLiteral("#D4E5F6")})},
            {QStringLiteral("summary"), QStringLiteral("An animal that was made up.")},
            {QStringLiteral("fields"), QJsonObject()}};
}

QJsonObject source(const QString& key) {
    return {{QStringLiteral("key"), key},
            {QStringLiteral("publisher"), QStringLiteral("Example Clinic (EC)")},
            {QStringLiteral("kind"), QStringLiteral("Veterinary clinic")},
            {QStringLiteral("title"), QStringLiteral("A page")},
            {QStringLiteral("url"), QStringLiteral("https://clinic.example/page")},
            {QStringLiteral("checked"), QStringLiteral("2026-01-02")}};
}

QJsonObject sourceFile(const QList<QJsonObject>& sources) {
    return {{QStringLiteral("checked"), QStringLiteral("2026-02-03")},
            {QStringLiteral("sources"), array(sources)}};
}

QJsonObject symptom(const QString& id, const QStringList& groups) {
    return {{QStringLiteral("id"), id},
            {QStringLiteral("label"), QStringLiteral("Shows the sign")},
            {QStringLiteral("groups"), list(groups)}};
}

QJsonObject rule(const QString& id, const QStringList& when, const QString& urgency) {
    return {{QStringLiteral("id"), id},
            {QStringLiteral("when"), list(when)},
            {QStringLiteral("urgency"), urgency},
            {QStringLiteral("causes"), list({QStringLiteral("a made-up cause")})},
            {QStringLiteral("advice"), QStringLiteral("Keep it warm.")},
            {QStringLiteral("s"), list({QStringLiteral("src-a")})}};
}

QJsonObject symptomFile(const QList<QJsonObject>& symptoms, const QList<QJsonObject>& rules) {
    return {{QStringLiteral("symptoms"), array(symptoms)}, {QStringLiteral("rules"), array(rules)}};
}

QJsonObject with(QJsonObject object, const QString& key, const QJsonValue& value) {
    if (value.isUndefined())
        object.remove(key);
    else
        object.insert(key, value);
    return object;
}

} // namespace Json

namespace {

void write(const QString& path, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        throw std::runtime_error("could not write the content of the test");
}

QByteArray exampleSources() {
    return Json::bytes(Json::sourceFile({Json::source(QStringLiteral("src-a"))}));
}

QByteArray exampleSymptoms() {
    const QStringList groups = {QStringLiteral("mammal"), QStringLiteral("reptile")};
    return Json::bytes(
        Json::symptomFile({Json::symptom(QStringLiteral("not-eating"), groups)},
                          {Json::rule(QStringLiteral("eats-nothing"), {QStringLiteral("not-eating")},
                                      QStringLiteral("soon"))}));
}

} // namespace

void ContentFolder::species(const QString& fileName, const QByteArray& json) const {
    write(m_folder.file(QStringLiteral("species/") + fileName), json);
}

void ContentFolder::sources(const QByteArray& json) const {
    write(m_folder.file(QStringLiteral("sources.json")), json);
}

void ContentFolder::symptoms(const QByteArray& json) const {
    write(m_folder.file(QStringLiteral("symptoms.json")), json);
}

void ContentFolder::addValidLists() const {
    sources(exampleSources());
    symptoms(exampleSymptoms());
}

void ContentFolder::remove(const QString& name) const {
    if (!QFile::remove(m_folder.file(name)))
        throw std::runtime_error("could not remove a file of the test");
}

void writeExampleContent(const QString& folder) {
    const QList<QJsonObject> animals = {
        Json::species(QStringLiteral("leopard-gecko"), QStringLiteral("Leopard Gecko"),
                      QStringLiteral("reptile")),
        Json::species(QStringLiteral("rabbit"), QStringLiteral("Rabbit"), QStringLiteral("mammal")),
        Json::species(QStringLiteral("axolotl"), QStringLiteral("Axolotl"), QStringLiteral("amphibian")),
    };
    for (const QJsonObject& animal : animals) {
        const QString id = animal.value(QStringLiteral("id")).toString();
        write(folder + QStringLiteral("/species/") + id + QStringLiteral(".json"), Json::bytes(animal));
    }
    write(folder + QStringLiteral("/sources.json"), exampleSources());
    write(folder + QStringLiteral("/symptoms.json"), exampleSymptoms());
}

} // namespace ormiva::testing
