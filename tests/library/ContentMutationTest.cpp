// Content files with a few bytes changed at random: each is read or refused with a reason, and nothing
// crashes.

#include "ContentFiles.h"

#include "JsonReader.h"
#include "LibraryPrinters.h"

#include <functional>
#include <random>

namespace ormiva {
namespace {

namespace Json = testing::Json;

qsizetype upTo(std::mt19937& random, qsizetype most) {
    return static_cast<qsizetype>(random() % (static_cast<std::size_t>(most) + 1));
}

QByteArray mutated(std::mt19937& random, QByteArray bytes) {
    static const QList<QByteArray> pieces = {"\"",      "{",       "}",        "[",       "]",
                                             ":",       ",",       "null",     "true",    "1e999",
                                             "\\u0000", "\\ud800", "\xf0\x9f", "\"id\":", "\xef\xbb\xbf",
                                             "-"};
    for (auto changes = 1 + upTo(random, 3); changes > 0; --changes) {
        const qsizetype at = upTo(random, bytes.size());
        switch (random() % 5) {
        case 0:
            if (at < bytes.size())
                bytes[at] = static_cast<char>(random() & 0xff);
            break;
        case 1:
            bytes.remove(at, 1 + upTo(random, 20));
            break;
        case 2:
            bytes.insert(at, pieces.at(upTo(random, pieces.size() - 1)));
            break;
        case 3:
            bytes.insert(at, bytes.mid(upTo(random, bytes.size()), upTo(random, 40)));
            break;
        default:
            if (random() % 4 == 0)
                bytes.truncate(at);
        }
    }
    return bytes;
}

/// Feeds `count` mutations of `valid` to `read`; both outcomes must occur.
void mutate(unsigned seed, int count, const QByteArray& valid,
            const std::function<void(const QByteArray&)>& read) {
    std::mt19937 random(seed);
    int accepted = 0;
    int refused = 0;
    for (int i = 0; i < count; ++i) {
        try {
            read(mutated(random, valid));
            ++accepted;
        } catch (const JsonFormatError& error) {
            EXPECT_FALSE(error.message.isEmpty());
            ++refused;
        }
    }
    EXPECT_GT(accepted, count / 100);
    EXPECT_GT(refused, count / 10);
}

TEST(MutatedContent, OfASpeciesIsReadOrRefused) {
    QJsonObject fields;
    for (const CareFieldInfo& entry : allCareFields())
        fields.insert(entry.id, Json::cited(u"Text on “%1”, 20–25 °C."_qs.arg(entry.title)));
    const QJsonObject json = Json::with(Json::species(u"rabbit"_qs, u"Rabbit"_qs), u"fields"_qs, fields);
    mutate(9, 1000, Json::bytes(json), [](const QByteArray& bytes) {
        const Species animal = ContentFiles::readSpecies(bytes);
        EXPECT_GE(animal.allText().count(u'\n'), 25);
    });
}

TEST(MutatedContent, OfTheSourcesIsReadOrRefused) {
    const QJsonObject json =
        Json::sourceFile({Json::source(u"a"_qs), Json::source(u"b"_qs), Json::source(u"c"_qs)});
    mutate(10, 500, Json::bytes(json), [](const QByteArray& bytes) { ContentFiles::readSources(bytes); });
}

TEST(MutatedContent, OfTheSymptomsIsReadOrRefused) {
    const QJsonObject json =
        Json::symptomFile({Json::symptom(u"a"_qs, {u"mammal"_qs, u"bird"_qs}), Json::symptom(u"b"_qs, {})},
                          {Json::rule(u"r"_qs, {u"a"_qs}, u"soon"_qs),
                           Json::with(Json::rule(u"q"_qs, {u"b"_qs}, u"emergency"_qs), u"groups"_qs,
                                      Json::list({u"reptile"_qs}))});
    mutate(11, 500, Json::bytes(json), [](const QByteArray& bytes) { ContentFiles::readSymptoms(bytes); });
}

} // namespace
} // namespace ormiva
