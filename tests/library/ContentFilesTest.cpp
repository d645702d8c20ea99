#include "ContentFiles.h"

#include "JsonReader.h"
#include "LibraryPrinters.h"

#include <QJsonDocument>

#include <functional>

namespace ormiva {
namespace {

namespace Json = testing::Json;

/// What is wrong with a file; empty when nothing is.
template <typename Read>
QString problem(Read read, const QByteArray& bytes) {
    try {
        read(bytes);
    } catch (const JsonFormatError& error) {
        return error.message;
    }
    return {};
}

QString speciesProblem(const QJsonObject& json) {
    return problem(ContentFiles::readSpecies, Json::bytes(json));
}
QString sourcesProblem(const QJsonObject& json) {
    return problem(ContentFiles::readSources, Json::bytes(json));
}

/// A value of each type with the words in which a problem names it.
QList<std::pair<QJsonValue, QString>> everyType() {
    return {{QJsonValue(QJsonValue::Undefined), u"nothing"_qs},
            {QJsonValue(QJsonValue::Null), u"null"_qs},
            {QJsonValue(true), u"a boolean"_qs},
            {QJsonValue(1.5), u"a number"_qs},
            {QJsonValue(u"x %1"_qs), u"“x %1”"_qs},
            {QJsonArray(), u"a list"_qs},
            {QJsonObject(), u"an object"_qs}};
}

QJsonObject rabbit() {
    return Json::with(Json::species(u"rabbit"_qs, u"Rabbit"_qs), u"fields"_qs,
                      QJsonObject{{u"diet"_qs, Json::cited(u"Hay.\nGreens."_qs, {u"src-b"_qs, u"src-a"_qs})},
                                  {u"notes"_qs, Json::cited(u"Kept."_qs, {})}});
}

Species expectedRabbit() {
    Species animal;
    animal.id = u"rabbit"_qs;
    animal.name = u"Rabbit"_qs;
    animal.scientific = u"Animal exemplum"_qs;
    animal.group = SpeciesGroup::Mammal;
    animal.art = u"rabbit"_qs;
    animal.palette = QStringList{u"A1B2C3"_qs, u"#D4E5F6"_qs};
    animal.summary = u"An animal that was made up."_qs;
    animal.fields.insert(u"diet"_qs, {u"Hay.\nGreens."_qs, {u"src-b"_qs, u"src-a"_qs}});
    animal.fields.insert(u"notes"_qs, {u"Kept."_qs, {}});
    return animal;
}

TEST(SpeciesFile, IsReadWhole) {
    EXPECT_EQ(ContentFiles::readSpecies(Json::bytes(rabbit())), expectedRabbit());
}

TEST(SpeciesFile, MayBeLaidOutInAnyWay) {
    EXPECT_EQ(ContentFiles::readSpecies(QJsonDocument(rabbit()).toJson(QJsonDocument::Indented)),
              expectedRabbit());
}

TEST(SpeciesFile, KeepsWhetherTheEvidenceIsLimited) {
    const auto limited = [](const QJsonValue& value) {
        return ContentFiles::readSpecies(Json::bytes(Json::with(rabbit(), u"limited"_qs, value))).limited;
    };
    EXPECT_EQ(limited(QJsonValue::Undefined), std::nullopt);
    EXPECT_EQ(limited(QJsonValue::Null), std::nullopt);
    EXPECT_EQ(limited(u"Little is known."_qs), u"Little is known."_qs);
    EXPECT_EQ(limited(u""_qs), u""_qs);
}

TEST(SpeciesFile, MayHoldFurtherKeys) {
    QJsonObject cited = Json::cited(u"Hay.\nGreens."_qs, {u"src-b"_qs, u"src-a"_qs});
    cited.insert(u"checked"_qs, 5);
    QJsonObject fields = rabbit().value(u"fields"_qs).toObject();
    fields.insert(u"diet"_qs, cited);
    const QJsonObject json =
        Json::with(Json::with(rabbit(), u"fields"_qs, fields), u"author"_qs, QJsonArray{1, 2});
    EXPECT_EQ(ContentFiles::readSpecies(Json::bytes(json)), expectedRabbit());
}

TEST(SpeciesFile, MayHaveAPaletteOfAnyLength) {
    for (const QStringList& palette : {QStringList(), QStringList{u"112233"_qs}, QStringList(5, u"x"_qs)})
        EXPECT_EQ(
            ContentFiles::readSpecies(Json::bytes(Json::with(rabbit(), u"palette"_qs, Json::list(palette))))
                .palette,
            palette);
}

TEST(SpeciesFile, KnowsEveryGroup) {
    for (const SpeciesGroupInfo& entry : allSpeciesGroups())
        EXPECT_EQ(ContentFiles::readSpecies(Json::bytes(Json::with(rabbit(), u"group"_qs, entry.id))).group,
                  entry.group);
}

/// Puts a value of every wrong type under `key` and expects a problem that names the key and what it must be.
void expectStrict(const QJsonObject& whole, const QString& key, const QString& expected, const QString& right,
                  const std::function<QString(const QJsonObject&)>& read, const QString& path,
                  bool optional = false) {
    int refused = 0;
    for (const auto& [value, words] : everyType()) {
        const bool leftOut = optional && (value.isUndefined() || value.isNull());
        if (words == right || (right == u"a text"_qs && value.isString()) || leftOut)
            continue;
        ++refused;
        EXPECT_EQ(read(Json::with(whole, key, value)),
                  u"%1: expected %2, found %3"_qs.arg(path, expected, words));
    }
    EXPECT_EQ(refused, optional ? 4 : 6);
}

TEST(SpeciesFile, NamesTheKeyThatIsMissingOrOfTheWrongType) {
    for (const QString& key : {u"id"_qs, u"name"_qs, u"scientific"_qs, u"group"_qs, u"art"_qs, u"summary"_qs})
        expectStrict(rabbit(), key, u"a text"_qs, u"a text"_qs, speciesProblem, key);
    expectStrict(rabbit(), u"palette"_qs, u"a list"_qs, u"a list"_qs, speciesProblem, u"palette"_qs);
    expectStrict(rabbit(), u"fields"_qs, u"an object"_qs, u"an object"_qs, speciesProblem, u"fields"_qs);
    expectStrict(rabbit(), u"limited"_qs, u"a text"_qs, u"a text"_qs, speciesProblem, u"limited"_qs, true);
}

TEST(SpeciesFile, NamesTheFieldThatIsMissingSomething) {
    const auto read = [](const QJsonObject& cited) {
        return speciesProblem(Json::with(rabbit(), u"fields"_qs, QJsonObject{{u"diet"_qs, cited}}));
    };
    const QJsonObject cited = Json::cited(u"x"_qs);
    expectStrict(cited, u"t"_qs, u"a text"_qs, u"a text"_qs, read, u"fields.diet.t"_qs);
    expectStrict(cited, u"s"_qs, u"a list"_qs, u"a list"_qs, read, u"fields.diet.s"_qs);
    const auto whole = [](const QJsonObject& fields) {
        return speciesProblem(Json::with(rabbit(), u"fields"_qs, fields));
    };
    EXPECT_EQ(whole(QJsonObject{{u"x"_qs, u"Hay."_qs}}), u"fields.x: expected an object, found “Hay.”"_qs);
    EXPECT_EQ(whole(QJsonObject{{u"diet"_qs, QJsonValue::Null}}),
              u"fields.diet: expected an object, found null"_qs);
}

TEST(SpeciesFile, NamesTheItemOfAListThatIsNoText) {
    EXPECT_EQ(speciesProblem(Json::with(rabbit(), u"palette"_qs, QJsonArray{u"112233"_qs, 7})),
              u"palette[1]: expected a text, found a number"_qs);
    const QJsonObject cited = Json::with(Json::cited(u"x"_qs), u"s"_qs, QJsonArray{QJsonValue::Null});
    EXPECT_EQ(speciesProblem(Json::with(rabbit(), u"fields"_qs, QJsonObject{{u"diet"_qs, cited}})),
              u"fields.diet.s[0]: expected a text, found null"_qs);
}

TEST(SpeciesFile, NamesAnUnknownGroup) {
    for (const QString& group : {u"fish"_qs, u"Mammal"_qs, u""_qs})
        EXPECT_EQ(speciesProblem(Json::with(rabbit(), u"group"_qs, group)),
                  u"group: expected one of mammal, reptile, amphibian, bird, invertebrate, found “%1”"_qs.arg(
                      group));
}

TEST(ContentFile, MustBeAnObjectOfJson) {
    const auto species = [](const QByteArray& bytes) { return problem(ContentFiles::readSpecies, bytes); };
    EXPECT_EQ(species("[]"), u"the file: expected an object, found a list"_qs);
    const QByteArray valid = Json::bytes(rabbit());
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray(" \n"), QByteArray("null"), QByteArray(R"("text")"), QByteArray("5"),
          QByteArray(R"({"id": "rabbit",})"), QByteArray("{'id': 'rabbit'}"),
          QByteArray(R"({"id": "ra)") + QByteArray("\xff") + QByteArray(R"("})"),
          QByteArray(R"({"id": NaN})"), valid.chopped(1), QByteArray(valid + '}'), QByteArray(valid + valid),
          QByteArray("// remark\n" + valid), QByteArray(5000, '[')}) {
        const QString told = species(bytes);
        EXPECT_TRUE(told.startsWith(u"not valid JSON: "_qs))
            << told.toStdString() << " for " << bytes.constData();
        EXPECT_TRUE(told.contains(u" at byte "_qs)) << told.toStdString();
    }
}

SourceRef expectedSource(const QString& key) {
    SourceRef source;
    source.key = key;
    source.publisher = u"Example Clinic (EC)"_qs;
    source.kind = u"Veterinary clinic"_qs;
    source.title = u"A page"_qs;
    source.url = u"https://clinic.example/page"_qs;
    source.checked = u"2026-01-02"_qs;
    return source;
}

QJsonObject twoSources() {
    return Json::sourceFile({Json::source(u"b"_qs), Json::source(u"a"_qs)});
}

TEST(SourcesFile, IsReadWhole) {
    const SourceFile file = ContentFiles::readSources(Json::bytes(Json::with(twoSources(), u"more"_qs, 1)));
    EXPECT_EQ(file.checked, u"2026-02-03"_qs);
    EXPECT_TRUE(file.sources == QList<SourceRef>({expectedSource(u"b"_qs), expectedSource(u"a"_qs)}));
}

TEST(SourcesFile, KeepsItsDayAsItStands) {
    const QJsonObject json = Json::with(twoSources(), u"checked"_qs, u"some day in May"_qs);
    EXPECT_EQ(ContentFiles::readSources(Json::bytes(json)).checked, u"some day in May"_qs);
}

TEST(SourcesFile, NamesTheKeyThatIsMissingOrOfTheWrongType) {
    expectStrict(twoSources(), u"checked"_qs, u"a text"_qs, u"a text"_qs, sourcesProblem, u"checked"_qs);
    expectStrict(twoSources(), u"sources"_qs, u"a list"_qs, u"a list"_qs, sourcesProblem, u"sources"_qs);
    const auto second = [](const QJsonObject& source) {
        return sourcesProblem(Json::sourceFile({Json::source(u"a"_qs), source}));
    };
    for (const QString& key : {u"key"_qs, u"publisher"_qs, u"kind"_qs, u"title"_qs, u"url"_qs, u"checked"_qs})
        expectStrict(Json::source(u"b"_qs), key, u"a text"_qs, u"a text"_qs, second, u"sources[1]."_qs + key);
    EXPECT_EQ(sourcesProblem(Json::with(twoSources(), u"sources"_qs, QJsonArray{u"x"_qs})),
              u"sources[0]: expected an object, found “x”"_qs);
}

} // namespace
} // namespace ormiva
