#include "ContentFiles.h"

#include "JsonReader.h"

namespace ormiva::ContentFiles {

namespace {

CitedText citedText(const JsonReader& json) {
    return {json.member(QStringLiteral("t")).text(), json.member(QStringLiteral("s")).texts()};
}

SpeciesGroup group(const JsonReader& json) {
    const auto group = speciesGroup(json.text());
    if (!group)
        json.fail(QStringLiteral("one of mammal, reptile, amphibian, bird, invertebrate"));
    return *group;
}

QList<SpeciesGroup> groups(const JsonReader& json) {
    return json.list(group);
}

Urgency urgencyOf(const JsonReader& json) {
    const auto value = urgency(json.text());
    if (!value)
        json.fail(QStringLiteral("one of monitor, soon, emergency"));
    return *value;
}

SourceRef source(const JsonReader& json) {
    return {.key = json.member(QStringLiteral("key")).text(),
            .publisher = json.member(QStringLiteral("publisher")).text(),
            .kind = json.member(QStringLiteral("kind")).text(),
            .title = json.member(QStringLiteral("title")).text(),
            .url = json.member(QStringLiteral("url")).text(),
            .checked = json.member(QStringLiteral("checked")).text()};
}

SymptomDef symptom(const JsonReader& json) {
    SymptomDef sign{.id = json.member(QStringLiteral("id")).text(),
                    .label = json.member(QStringLiteral("label")).text(),
                    .redFlag = {},
                    .groups = groups(json.member(QStringLiteral("groups")))};
    if (const auto redFlag = json.optionalMember(QStringLiteral("redFlag")))
        sign.redFlag = redFlag->boolean();
    return sign;
}

SymptomRule rule(const JsonReader& json) {
    SymptomRule rule{.id = json.member(QStringLiteral("id")).text(),
                     .when = json.member(QStringLiteral("when")).texts(),
                     .species = {},
                     .groups = {},
                     .urgency = urgencyOf(json.member(QStringLiteral("urgency"))),
                     .causes = json.member(QStringLiteral("causes")).texts(),
                     .advice = json.member(QStringLiteral("advice")).text(),
                     .s = json.member(QStringLiteral("s")).texts()};
    if (const auto species = json.optionalMember(QStringLiteral("species")))
        rule.species = species->texts();
    if (const auto listed = json.optionalMember(QStringLiteral("groups")))
        rule.groups = groups(*listed);
    return rule;
}

} // namespace

Species readSpecies(const QByteArray& bytes) {
    const JsonReader json = JsonReader::parse(bytes);
    Species species;
    species.id = json.member(QStringLiteral("id")).text();
    species.name = json.member(QStringLiteral("name")).text();
    species.scientific = json.member(QStringLiteral("scientific")).text();
    species.group = group(json.member(QStringLiteral("group")));
    species.art = json.member(QStringLiteral("art")).text();
    species.palette = json.member(QStringLiteral("palette")).texts();
    species.summary = json.member(QStringLiteral("summary")).text();
    if (const auto limited = json.optionalMember(QStringLiteral("limited")))
        species.limited = limited->text();
    json.member(QStringLiteral("fields")).members([&](const QString& key, const JsonReader& value) {
        species.fields.insert(key, citedText(value));
    });
    return species;
}

SourceFile readSources(const QByteArray& bytes) {
    const JsonReader json = JsonReader::parse(bytes);
    return {json.member(QStringLiteral("checked")).text(),
            json.member(QStringLiteral("sources")).list(source)};
}

SymptomFile readSymptoms(const QByteArray& bytes) {
    const JsonReader json = JsonReader::parse(bytes);
    return {json.member(QStringLiteral("symptoms")).list(symptom),
            json.member(QStringLiteral("rules")).list(rule)};
}

} // namespace ormiva::ContentFiles
