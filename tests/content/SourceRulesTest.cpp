#include "ShippedContent.h"

#include <gtest/gtest.h>

#include <QDate>
#include <QFile>
#include <QSet>

#include <algorithm>

namespace ormiva {
namespace {

using namespace ormiva::testing;

QSet<QString> citedKeys() {
    QSet<QString> cited;
    for (const Species& animal : shipped().species())
        for (const QString& key : animal.sourceKeys())
            cited.insert(key);
    for (const SymptomRule& rule : shipped().rules())
        for (const QString& key : rule.s)
            cited.insert(key);
    return cited;
}

TEST(SourceRules, ThereAre100SourcesOrMore) {
    EXPECT_GE(shipped().sources().size(), 100);
}

TEST(SourceRules, EachHasASecureAddress) {
    for (const SourceRef& source : shipped().sources()) {
        EXPECT_TRUE(source.url.startsWith(u"https://")) << source.key.toStdString();
        const QUrl address(source.url, QUrl::StrictMode);
        EXPECT_TRUE(address.isValid() && address.host().contains(u'.')) << source.url.toStdString();
        EXPECT_FALSE(source.url.contains(u"...") || source.url.contains(u'…')) << source.url.toStdString();
    }
}

TEST(SourceRules, NoAddressIsListedTwice) {
    QMap<QString, QStringList> keys;
    for (const SourceRef& source : shipped().sources())
        keys[source.url].append(source.key);
    for (const QStringList& same : keys)
        EXPECT_EQ(same.size(), 1) << same.join(u", ").toStdString();
}

TEST(SourceRules, EachHasATitleAndAPublisher) {
    for (const SourceRef& source : shipped().sources()) {
        EXPECT_FALSE(source.title.trimmed().isEmpty()) << source.key.toStdString();
        EXPECT_FALSE(source.publisher.trimmed().isEmpty()) << source.key.toStdString();
    }
}

TEST(SourceRules, EachWasCheckedOnADay) {
    const QDate last = QDate::fromString(shipped().sourcesChecked(), Qt::ISODate);
    ASSERT_TRUE(last.isValid());
    for (const SourceRef& source : shipped().sources()) {
        EXPECT_EQ(source.checked.size(), 10) << source.key.toStdString();
        const QDate checked = QDate::fromString(source.checked, Qt::ISODate);
        EXPECT_TRUE(checked.isValid() && checked <= last) << source.key.toStdString();
    }
}

TEST(SourceRules, AllButThreeAtMostAreCited) {
    const QSet<QString> cited = citedKeys();
    QStringList uncited;
    for (const SourceRef& source : shipped().sources())
        if (!cited.contains(source.key))
            uncited.append(source.key);
    EXPECT_LE(uncited.size(), 3) << uncited.join(u", ").toStdString();
    EXPECT_GE(cited.size(), shipped().sources().size() - 3);
}

TEST(SourceRules, EachKindIsOneThatMayBeCited) {
    for (const SourceRef& source : shipped().sources())
        EXPECT_TRUE(source.kind.contains(u"Veterinary") || source.kind.contains(u"veterinary") ||
                    source.kind.contains(u"University") || source.kind.contains(u"Zoo") ||
                    source.kind.contains(u"poison"))
            << source.key.toStdString() << ": " << source.kind.toStdString();
}

TEST(SourceRules, AreListedByKey) {
    QFile file(QStringLiteral(ORMIVA_ROOT "/data/sources.json"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QStringList keys;
    for (const QByteArray& line : file.readAll().split('\n'))
        if (line.trimmed().startsWith("\"key\": "))
            keys.append(QString::fromUtf8(line.trimmed().mid(8).chopped(2)));
    EXPECT_EQ(keys.size(), shipped().sources().size());
    EXPECT_TRUE(std::ranges::is_sorted(keys));
}

} // namespace
} // namespace ormiva
