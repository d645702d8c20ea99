#include "ShippedContent.h"

#include <gtest/gtest.h>

#include <QDate>
#include <QDir>

namespace ormiva {
namespace {

using namespace ormiva::testing;

/// The evidence of every species, and that of the rules.
QList<Evidence> allEvidence() {
    QList<Evidence> all;
    for (const Species& animal : shipped().species())
        all.append(evidence(animal.id));
    all.append(evidence(u"symptoms"_qs));
    return all;
}

TEST(Evidence, StandsInAFileForEachSpeciesAndOneForTheRules) {
    QStringList expected = {u"symptoms.json"_qs};
    for (const Species& animal : shipped().species())
        expected.append(animal.id + u".json"_qs);
    expected.sort();
    EXPECT_EQ(
        QDir(QStringLiteral(ORMIVA_ROOT "/research")).entryList({u"*.json"_qs}, QDir::Files, QDir::Name),
        expected);
    for (const Species& animal : shipped().species())
        EXPECT_EQ(evidence(animal.id).id, animal.id);
}

TEST(Evidence, OfEachSectionIsWhatTheSectionCites) {
    for (const Species& animal : shipped().species()) {
        const Evidence read = evidence(animal.id);
        EXPECT_EQ(read.facts.keys(), animal.fields.keys()) << animal.id.toStdString();
        for (const CareFieldInfo& section : allCareFields())
            EXPECT_EQ(animal.field(section.field).s, read.keys(section.id))
                << animal.id.toStdString() << ' ' << section.id.toStdString();
    }
}

TEST(Evidence, OfEachRuleIsWhatTheRuleCites) {
    const Evidence read = evidence(u"symptoms"_qs);
    QStringList rules;
    for (const SymptomRule& rule : shipped().rules()) {
        EXPECT_EQ(rule.s, read.keys(rule.id)) << rule.id.toStdString();
        rules.append(rule.id);
    }
    rules.sort();
    EXPECT_EQ(read.facts.keys(), rules);
}

TEST(Evidence, EveryFactHasWordsAndASource) {
    for (const Evidence& read : allEvidence())
        for (auto section = read.facts.begin(); section != read.facts.end(); ++section)
            for (const Fact& fact : *section) {
                EXPECT_GE(fact.text.size(), 4) << read.id.toStdString() << ' ' << section.key().toStdString();
                EXPECT_FALSE(fact.s.isEmpty()) << read.id.toStdString() << ": " << fact.text.toStdString();
            }
}

TEST(Evidence, EveryPageIsAListedSourceAndAgreesWithIt) {
    for (const Evidence& read : allEvidence())
        for (const Page& page : read.pages) {
            const std::optional<SourceRef> listed = shipped().source(page.source.key);
            ASSERT_TRUE(listed) << read.id.toStdString() << ": " << page.source.key.toStdString();
            EXPECT_EQ(listed->publisher, page.source.publisher) << page.source.key.toStdString();
            EXPECT_EQ(listed->kind, page.source.kind) << page.source.key.toStdString();
            EXPECT_EQ(listed->title, page.source.title) << page.source.key.toStdString();
            EXPECT_EQ(listed->url, page.source.url) << page.source.key.toStdString();
            EXPECT_GE(listed->checked, page.source.checked) << page.source.key.toStdString();
        }
}

TEST(Evidence, TheDayOfCheckingIsThatOfTheLastReading) {
    QMap<QString, QString> lastRead;
    for (const Evidence& read : allEvidence())
        for (const Page& page : read.pages) {
            EXPECT_TRUE(QDate::fromString(page.read, Qt::ISODate).isValid()) << page.source.key.toStdString();
            lastRead[page.source.key] = std::max(lastRead[page.source.key], page.source.checked);
        }
    for (const SourceRef& source : shipped().sources())
        EXPECT_EQ(source.checked, lastRead.value(source.key)) << source.key.toStdString();
}

TEST(Evidence, NoPageStandsThereForNothing) {
    for (const Evidence& read : allEvidence()) {
        QSet<QString> used;
        for (const QString& section : read.facts.keys())
            for (const QString& key : read.keys(section))
                used.insert(key);
        QSet<QString> pages;
        for (const Page& page : read.pages)
            pages.insert(page.source.key);
        EXPECT_EQ(pages.size(), read.pages.size()) << read.id.toStdString();
        EXPECT_EQ(pages, used) << read.id.toStdString();
    }
}

} // namespace
} // namespace ormiva
