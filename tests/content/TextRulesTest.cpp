#include "ShippedContent.h"

#include "DoseScanner.h"
#include "OMInfo.h"
#include "UnitPairs.h"

#include <gtest/gtest.h>

#include <QHash>
#include <QRegularExpression>

namespace ormiva {
namespace {

using namespace ormiva::testing;

TEST(Texts, StateNoDose) {
    const QList<DoseScanner::ShippedText> texts = DoseScanner::shippedTexts(shipped());
    EXPECT_GE(texts.size(),
              shipped().species().size() + shipped().symptoms().size() + shipped().rules().size());
    for (const DoseScanner::ShippedText& text : texts)
        EXPECT_EQ(DoseScanner::findings(text.content), QStringList()) << text.label.toStdString();
}

TEST(Texts, OfTheSourcesStateNoDose) {
    for (const SourceRef& source : shipped().sources())
        EXPECT_EQ(DoseScanner::findings(source.title + u'\n' + source.publisher + u'\n' + source.kind),
                  QStringList())
            << source.key.toStdString();
}

TEST(Texts, AgreeInBothUnits) {
    int compared = 0;
    for (const PlacedText& text : sheetTexts() + symptomTexts()) {
        const UnitPairs pairs = unitPairs(text.text);
        EXPECT_EQ(pairs.wrong, QStringList()) << text.place.toStdString();
        compared += pairs.count;
    }
    EXPECT_GE(compared, 300);
}

TEST(Texts, GiveEveryTemperatureInBothUnits) {
    for (const PlacedText& text : sheetTexts() + symptomTexts())
        EXPECT_EQ(temperaturesInOneUnit(text.text), QStringList()) << text.place.toStdString();
}

/// The sentences and bullets of a text, without marks, in lower case.
QStringList sentences(const QString& text) {
    static const QRegularExpression end(u"(?<=[.!?])\\s+|\\n"_qs);
    static const QRegularExpression marks(u"\\W+"_qs, QRegularExpression::UseUnicodePropertiesOption);
    QStringList sentences;
    for (const QString& sentence : text.split(end))
        sentences.append(sentence.toLower().replace(marks, u" "_qs).trimmed());
    return sentences;
}

TEST(Texts, NeverRepeatALongSentence) {
    QHash<QString, QString> places;
    for (const PlacedText& text : sheetTexts())
        for (const QString& sentence : sentences(text.text)) {
            if (sentence.count(u' ') < 8)
                continue;
            EXPECT_FALSE(places.contains(sentence))
                << text.place.toStdString() << " and " << places.value(sentence).toStdString() << ": "
                << sentence.toStdString();
            places.insert(sentence, text.place);
        }
    EXPECT_GE(places.size(), 1000);
}

TEST(Texts, AreSetWithCare) {
    static const QRegularExpression hyphenInRange(u"\\d-\\d"_qs);
    static const QRegularExpression otherBullets(u"^[-*·–]"_qs, QRegularExpression::MultilineOption);
    for (const PlacedText& text : sheetTexts() + symptomTexts()) {
        EXPECT_FALSE(text.text.contains(u"  ")) << text.place.toStdString();
        EXPECT_FALSE(hyphenInRange.match(QString(text.text).remove(OMInfo::poisonPhone)).hasMatch())
            << text.place.toStdString();
        EXPECT_FALSE(otherBullets.match(text.text).hasMatch()) << text.place.toStdString();
        EXPECT_FALSE(text.text.contains(u"..")) << text.place.toStdString();
    }
}

} // namespace
} // namespace ormiva
