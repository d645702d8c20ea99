#include "CareLibrary.h"

#include "Printers.h"

namespace ormiva {
namespace {

TEST(SearchTerms, AreTheLettersAndNumbersInLowerCase) {
    const QList<std::pair<QString, QStringList>> expected = {
        {u"Stuck shed!"_qs, {u"stuck"_qs, u"shed"_qs}},
        {u"UVB"_qs, {u"uvb"_qs}},
        {u"T5-HO tube"_qs, {u"t5"_qs, u"ho"_qs, u"tube"_qs}},
        {u"guinea-pig's \"hay\"* (dry)"_qs, {u"guinea"_qs, u"pig"_qs, u"s"_qs, u"hay"_qs, u"dry"_qs}},
        {u"a AND b OR NOT c"_qs, {u"a"_qs, u"and"_qs, u"b"_qs, u"or"_qs, u"not"_qs, u"c"_qs}},
        {u"name:hay^2"_qs, {u"name"_qs, u"hay"_qs, u"2"_qs}},
        {u"under_score"_qs, {u"under"_qs, u"score"_qs}},
        {u"ÄSKULAP Inácio"_qs, {u"äskulap"_qs, u"inácio"_qs}},
        {u"Ящерица 蜥蜴"_qs, {u"ящерица"_qs, u"蜥蜴"_qs}},
        {u"m² ½ Ⅳ ٣"_qs, {u"m²"_qs, u"½"_qs, u"ⅳ"_qs, u"٣"_qs}},
        {u"a\u00a0b\u2003c\nd\te"_qs, {u"a"_qs, u"b"_qs, u"c"_qs, u"d"_qs, u"e"_qs}},
        {u"28°C – 30 °C"_qs, {u"28"_qs, u"c"_qs, u"30"_qs, u"c"_qs}},
        {u"🦎hay🦎"_qs, {u"hay"_qs}},
        {u"𝐀𐐀"_qs, {u"𝐀𐐨"_qs}},
    };
    for (const auto& [query, terms] : expected)
        EXPECT_EQ(searchTerms(query), terms) << query.toStdString();
}

TEST(SearchTerms, KeepACombiningMarkWithItsLetter) {
    EXPECT_EQ(searchTerms(u"Ina\u0301cio"_qs), QStringList({u"ina\u0301cio"_qs}));
    EXPECT_EQ(searchTerms(u"\u0301 a"_qs), QStringList({u"a"_qs}));
}

TEST(SearchTerms, AreNoneInWhatHasNoLettersOrNumbers) {
    for (const QString& query : {QString(), u""_qs, u"   "_qs, u"***"_qs, u"\"\"()-'`^:"_qs, u"\u00a0\n"_qs,
                                 u"🦎"_qs, u"…–—°€"_qs})
        EXPECT_EQ(searchTerms(query), QStringList()) << query.toStdString();
}

} // namespace
} // namespace ormiva
