#include "ShippedContent.h"

#include <gtest/gtest.h>

#include <hunspell/hunspell.hxx>

#include <QFile>
#include <QRegularExpression>

namespace ormiva {
namespace {

using namespace ormiva::testing;

/// American English, with the field's terms and the proper names of words.txt, one a line.
class Dictionary {
public:
    Dictionary()
        : m_words(HUNSPELL_AFFIXES, HUNSPELL_WORDS) {
        QFile file(QStringLiteral(ORMIVA_ROOT "/tests/content/words.txt"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)) {
            m_words.add(line.toStdString());
            m_own.append(line);
        }
    }

    bool knows(const QString& word) { return m_words.spell(word.toStdString()); }
    const QStringList& ownWords() const { return m_own; }

private:
    Hunspell m_words;
    QStringList m_own;
};

QStringList words(const QString& text) {
    static const QRegularExpression word(u"\\p{L}+(?:['’]\\p{L}+)*"_qs);
    QStringList words;
    for (const QRegularExpressionMatch& match : word.globalMatch(text))
        words.append(match.captured().replace(u'’', u'\''));
    return words;
}

TEST(Spelling, OfEveryWordIsInTheDictionary) {
    Dictionary dictionary;
    QMap<QString, QString> unknown;
    for (const PlacedText& text : sheetTexts() + symptomTexts())
        for (const QString& word : words(text.text))
            if (!dictionary.knows(word))
                unknown.insert(word, text.place);
    for (auto word = unknown.begin(); word != unknown.end(); ++word)
        ADD_FAILURE() << word.key().toStdString() << " in " << word->toStdString();
}

TEST(Spelling, MistakesAreNoticed) {
    Dictionary dictionary;
    EXPECT_TRUE(dictionary.knows(u"temperature"_qs));
    for (const QString& mistake : {u"temperture"_qs, u"colour"_qs, u"diarrhoea"_qs, u"enclosue"_qs})
        EXPECT_FALSE(dictionary.knows(mistake)) << mistake.toStdString();
}

TEST(Spelling, TheListOfTermsIsSortedAndUsed) {
    const QStringList own = Dictionary().ownWords();
    QStringList sorted = own;
    sorted.sort();
    sorted.removeDuplicates();
    EXPECT_EQ(own, sorted);

    QSet<QString> used;
    for (const PlacedText& text : sheetTexts() + symptomTexts())
        for (const QString& word : words(text.text)) {
            used.insert(word);
            used.insert(word.toLower());
        }
    for (const QString& term : own)
        EXPECT_TRUE(used.contains(term)) << term.toStdString();
}

} // namespace
} // namespace ormiva
