#include "ShippedContent.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace ormiva::testing {

namespace {

QStringList texts(const QJsonArray& array) {
    QStringList texts;
    for (const QJsonValue& value : array)
        texts.append(value.toString());
    return texts;
}

} // namespace

const CareLibrary& shipped() {
    static const CareLibrary library(QStringLiteral(ORMIVA_ROOT "/data"));
    return library;
}

QList<PlacedText> sheetTexts() {
    QList<PlacedText> texts;
    for (const Species& animal : shipped().species()) {
        texts.append({animal.id + u" summary"_qs, animal.summary});
        if (animal.limited)
            texts.append({animal.id + u" limited"_qs, *animal.limited});
        for (const CareFieldInfo& section : allCareFields())
            texts.append({animal.id + u' ' + section.id, animal.field(section.field).t});
    }
    return texts;
}

QList<PlacedText> symptomTexts() {
    QList<PlacedText> texts;
    for (const SymptomDef& sign : shipped().symptoms())
        texts.append({u"sign "_qs + sign.id, sign.label});
    for (const SymptomRule& rule : shipped().rules()) {
        texts.append({u"rule "_qs + rule.id, rule.advice});
        for (const QString& cause : rule.causes)
            texts.append({u"rule "_qs + rule.id, cause});
    }
    return texts;
}

QStringList Evidence::keys(const QString& section) const {
    QStringList keys;
    for (const Fact& fact : facts.value(section))
        keys += fact.s;
    keys.removeDuplicates();
    return keys;
}

Evidence evidence(const QString& id) {
    QFile file(QStringLiteral(ORMIVA_ROOT "/research/%1.json").arg(id));
    QJsonParseError error;
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    const QJsonObject root = QJsonDocument::fromJson(file.readAll(), &error).object();
    EXPECT_EQ(error.error, QJsonParseError::NoError) << file.fileName().toStdString();

    Evidence evidence;
    evidence.id = root[u"id"].toString();
    for (const QJsonValue& value : root[u"sources"].toArray()) {
        const QJsonObject page = value.toObject();
        const QString read = page[u"read"].toString();
        const QString verified = page[u"verified"].toString();
        evidence.pages.append({{.key = page[u"key"].toString(),
                                .publisher = page[u"publisher"].toString(),
                                .kind = page[u"kind"].toString(),
                                .title = page[u"title"].toString(),
                                .url = page[u"url"].toString(),
                                .checked = verified.isEmpty() ? read : verified},
                               read,
                               verified});
    }
    const QJsonObject facts = root[u"facts"].toObject();
    for (auto section = facts.begin(); section != facts.end(); ++section)
        for (const QJsonValue& value : section->toArray())
            evidence.facts[section.key()].append(
                {value.toObject()[u"f"].toString(), texts(value.toObject()[u"s"].toArray())});
    return evidence;
}

bool saysSilent(const QString& text) {
    const QString lower = text.toLower();
    return lower.contains(u"not covered by the cited sources") || lower.contains(u"given in the cited") ||
           lower.contains(u"the cited sources do not");
}

} // namespace ormiva::testing
