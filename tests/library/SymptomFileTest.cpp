#include "ContentFiles.h"

#include "JsonReader.h"
#include "LibraryPrinters.h"

namespace ormiva {
namespace {

namespace Json = testing::Json;

const QString noGroup =
    QStringLiteral("expected one of mammal, reptile, amphibian, bird, invertebrate, found ");

QString problem(const QJsonObject& json) {
    try {
        ContentFiles::readSymptoms(Json::bytes(json));
    } catch (const JsonFormatError& error) {
        return error.message;
    }
    return {};
}

QString signProblem(const QJsonObject& sign) {
    return problem(Json::symptomFile({sign}, {}));
}
QString ruleProblem(const QJsonObject& rule) {
    return problem(Json::symptomFile({}, {rule}));
}

QJsonObject sign() {
    return Json::symptom(u"vomit"_qs, {u"mammal"_qs, u"bird"_qs});
}
QJsonObject rule() {
    return Json::rule(u"rf-vomit"_qs, {u"vomit"_qs, u"collapse"_qs}, u"emergency"_qs);
}

SymptomDef expectedSign() {
    SymptomDef sign;
    sign.id = u"vomit"_qs;
    sign.label = u"Shows the sign"_qs;
    sign.groups = {SpeciesGroup::Mammal, SpeciesGroup::Bird};
    return sign;
}

SymptomRule expectedRule() {
    SymptomRule rule;
    rule.id = u"rf-vomit"_qs;
    rule.when = QStringList{u"vomit"_qs, u"collapse"_qs};
    rule.urgency = Urgency::Emergency;
    rule.causes = QStringList{u"a made-up cause"_qs};
    rule.advice = u"Keep it warm."_qs;
    rule.s = QStringList{u"src-a"_qs};
    return rule;
}

SymptomDef readSign(const QJsonObject& sign) {
    return ContentFiles::readSymptoms(Json::bytes(Json::symptomFile({sign}, {}))).symptoms.first();
}

SymptomRule readRule(const QJsonObject& rule) {
    return ContentFiles::readSymptoms(Json::bytes(Json::symptomFile({}, {rule}))).rules.first();
}

TEST(SymptomsFile, IsReadWholeInItsOrder) {
    SymptomDef second = expectedSign();
    second.id = u"a"_qs;
    second.groups = {};
    SymptomRule secondRule = expectedRule();
    secondRule.id = u"b"_qs;
    secondRule.when.clear();
    secondRule.urgency = Urgency::Soon;
    const QJsonObject json = Json::symptomFile({sign(), Json::symptom(u"a"_qs, {})},
                                               {rule(), Json::rule(u"b"_qs, {}, u"soon"_qs)});
    const SymptomFile file = ContentFiles::readSymptoms(Json::bytes(json));
    EXPECT_EQ(file.symptoms, QList<SymptomDef>({expectedSign(), second}));
    EXPECT_EQ(file.rules, QList<SymptomRule>({expectedRule(), secondRule}));
}

TEST(SymptomsFile, MayBeEmpty) {
    const SymptomFile file = ContentFiles::readSymptoms(Json::bytes(Json::symptomFile({}, {})));
    EXPECT_EQ(file.symptoms, QList<SymptomDef>());
    EXPECT_EQ(file.rules, QList<SymptomRule>());
}

TEST(SymptomsFile, MayHoldFurtherKeys) {
    EXPECT_EQ(readSign(Json::with(sign(), u"comment"_qs, 7)), expectedSign());
    EXPECT_EQ(readRule(Json::with(rule(), u"comment"_qs, QJsonObject())), expectedRule());
    EXPECT_EQ(problem(Json::with(Json::symptomFile({}, {}), u"version"_qs, 3)), QString());
}

TEST(SymptomsFile, ReadsARedFlagAsTrueFalseOrAbsent) {
    SymptomDef expected = expectedSign();
    EXPECT_EQ(readSign(Json::with(sign(), u"redFlag"_qs, QJsonValue::Null)), expected);
    expected.redFlag = false;
    EXPECT_EQ(readSign(Json::with(sign(), u"redFlag"_qs, false)), expected);
    expected.redFlag = true;
    EXPECT_EQ(readSign(Json::with(sign(), u"redFlag"_qs, true)), expected);
}

TEST(SymptomsFile, ReadsTheListsOfARuleAsPresentOrAbsent) {
    SymptomRule expected = expectedRule();
    EXPECT_EQ(readRule(Json::with(rule(), u"species"_qs, QJsonValue::Null)), expected);
    EXPECT_EQ(readRule(Json::with(rule(), u"groups"_qs, QJsonValue::Null)), expected);
    expected.species = QStringList();
    EXPECT_EQ(readRule(Json::with(rule(), u"species"_qs, QJsonArray())), expected);
    expected.species = QStringList{u"rabbit"_qs, u"rat"_qs};
    expected.groups = QList<SpeciesGroup>{SpeciesGroup::Reptile};
    EXPECT_EQ(readRule(Json::with(Json::with(rule(), u"species"_qs, Json::list({u"rabbit"_qs, u"rat"_qs})),
                                  u"groups"_qs, Json::list({u"reptile"_qs}))),
              expected);
    expected.groups = QList<SpeciesGroup>();
    EXPECT_EQ(readRule(Json::with(Json::with(rule(), u"species"_qs, Json::list({u"rabbit"_qs, u"rat"_qs})),
                                  u"groups"_qs, QJsonArray())),
              expected);
}

TEST(SymptomsFile, NamesTheListThatIsMissingOrOfTheWrongType) {
    const QJsonObject whole = Json::symptomFile({sign()}, {rule()});
    EXPECT_EQ(problem(whole), QString());
    for (const QString& key : {u"symptoms"_qs, u"rules"_qs}) {
        EXPECT_EQ(problem(Json::with(whole, key, QJsonValue::Undefined)),
                  key + u": expected a list, found nothing"_qs);
        EXPECT_EQ(problem(Json::with(whole, key, QJsonValue::Null)),
                  key + u": expected a list, found null"_qs);
        EXPECT_EQ(problem(Json::with(whole, key, QJsonObject())),
                  key + u": expected a list, found an object"_qs);
        EXPECT_EQ(problem(Json::with(whole, key, QJsonArray{5})),
                  key + u"[0]: expected an object, found a number"_qs);
    }
}

TEST(SymptomsFile, NamesTheKeyOfASignThatIsMissingOrOfTheWrongType) {
    for (const QString& key : {u"id"_qs, u"label"_qs}) {
        const QString path = u"symptoms[0]."_qs + key;
        EXPECT_EQ(signProblem(Json::with(sign(), key, QJsonValue::Undefined)),
                  path + u": expected a text, found nothing"_qs);
        EXPECT_EQ(signProblem(Json::with(sign(), key, QJsonValue::Null)),
                  path + u": expected a text, found null"_qs);
        EXPECT_EQ(signProblem(Json::with(sign(), key, 1)), path + u": expected a text, found a number"_qs);
    }
    const QString groups = u"groups"_qs;
    EXPECT_EQ(signProblem(Json::with(sign(), groups, QJsonValue::Undefined)),
              u"symptoms[0].groups: expected a list, found nothing"_qs);
    EXPECT_EQ(signProblem(Json::with(sign(), groups, QJsonValue::Null)),
              u"symptoms[0].groups: expected a list, found null"_qs);
    EXPECT_EQ(signProblem(Json::with(sign(), groups, u"mammal"_qs)),
              u"symptoms[0].groups: expected a list, found “mammal”"_qs);
    EXPECT_EQ(signProblem(Json::with(sign(), groups, QJsonArray{u"mammal"_qs, 3})),
              u"symptoms[0].groups[1]: expected a text, found a number"_qs);
    EXPECT_EQ(signProblem(Json::with(sign(), groups, QJsonArray{u"mammal"_qs, u"fish"_qs})),
              u"symptoms[0].groups[1]: "_qs + noGroup + u"“fish”"_qs);
    EXPECT_EQ(signProblem(Json::with(sign(), u"redFlag"_qs, 1)),
              u"symptoms[0].redFlag: expected a boolean, found a number"_qs);
    EXPECT_EQ(signProblem(Json::with(sign(), u"redFlag"_qs, u"true"_qs)),
              u"symptoms[0].redFlag: expected a boolean, found “true”"_qs);
}

TEST(SymptomsFile, NamesTheKeyOfARuleThatIsMissingOrOfTheWrongType) {
    for (const QString& key : {u"id"_qs, u"urgency"_qs, u"advice"_qs}) {
        const QString path = u"rules[0]."_qs + key;
        EXPECT_EQ(ruleProblem(Json::with(rule(), key, QJsonValue::Undefined)),
                  path + u": expected a text, found nothing"_qs);
        EXPECT_EQ(ruleProblem(Json::with(rule(), key, QJsonValue::Null)),
                  path + u": expected a text, found null"_qs);
        EXPECT_EQ(ruleProblem(Json::with(rule(), key, false)),
                  path + u": expected a text, found a boolean"_qs);
    }
    for (const QString& key : {u"when"_qs, u"causes"_qs, u"s"_qs}) {
        const QString path = u"rules[0]."_qs + key;
        EXPECT_EQ(ruleProblem(Json::with(rule(), key, QJsonValue::Undefined)),
                  path + u": expected a list, found nothing"_qs);
        EXPECT_EQ(ruleProblem(Json::with(rule(), key, QJsonValue::Null)),
                  path + u": expected a list, found null"_qs);
        EXPECT_EQ(ruleProblem(Json::with(rule(), key, u"x"_qs)), path + u": expected a list, found “x”"_qs);
        EXPECT_EQ(ruleProblem(Json::with(rule(), key, QJsonArray{u"x"_qs, QJsonObject()})),
                  path + u"[1]: expected a text, found an object"_qs);
    }
    for (const QString& key : {u"species"_qs, u"groups"_qs}) {
        const QString path = u"rules[0]."_qs + key;
        EXPECT_EQ(ruleProblem(Json::with(rule(), key, u"rabbit"_qs)),
                  path + u": expected a list, found “rabbit”"_qs);
        EXPECT_EQ(ruleProblem(Json::with(rule(), key, QJsonArray{true})),
                  path + u"[0]: expected a text, found a boolean"_qs);
    }
}

TEST(SymptomsFile, NamesWhatIsNotInATable) {
    EXPECT_EQ(ruleProblem(Json::with(rule(), u"urgency"_qs, u"urgent"_qs)),
              u"rules[0].urgency: expected one of monitor, soon, emergency, found “urgent”"_qs);
    EXPECT_EQ(ruleProblem(Json::with(rule(), u"groups"_qs, Json::list({u"Reptile"_qs}))),
              u"rules[0].groups[0]: "_qs + noGroup + u"“Reptile”"_qs);
    for (const UrgencyInfo& entry : allUrgencies())
        EXPECT_EQ(readRule(Json::with(rule(), u"urgency"_qs, entry.id)).urgency, entry.urgency);
}

} // namespace
} // namespace ormiva
