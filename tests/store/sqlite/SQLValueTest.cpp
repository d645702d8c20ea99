#include "SQLPrinters.h"

#include <QSet>

#include <cmath>
#include <limits>

namespace ormiva {
namespace {

TEST(SQLValue, HasFiveCasesInOrder) {
    EXPECT_EQ(SQLValue(qint64(1)).index(), 0U);
    EXPECT_EQ(SQLValue(1.0).index(), 1U);
    EXPECT_EQ(SQLValue(u"1"_qs).index(), 2U);
    EXPECT_EQ(SQLValue(QByteArray("1")).index(), 3U);
    EXPECT_EQ(SQLValue(SQLNull()).index(), 4U);
    EXPECT_EQ(std::variant_size_v<SQLValue>, 5U);
}

TEST(SQLValue, IsEqualByCaseAndPayload) {
    EXPECT_TRUE(SQLValue(qint64(1)) == SQLValue(qint64(1)));
    EXPECT_FALSE(SQLValue(qint64(1)) == SQLValue(qint64(2)));
    EXPECT_FALSE(SQLValue(qint64(1)) == SQLValue(1.0));
    EXPECT_FALSE(SQLValue(u"1"_qs) == SQLValue(qint64(1)));
    EXPECT_FALSE(SQLValue(u"a"_qs) == SQLValue(QByteArray("a")));
    EXPECT_FALSE(SQLValue(QByteArray("a")) == SQLValue(QByteArray("b")));
    EXPECT_FALSE(SQLValue(u""_qs) == SQLValue(SQLNull()));
    EXPECT_TRUE(SQLValue(SQLNull()) == SQLValue(SQLNull()));
}

TEST(SQLValue, PrintsCaseAndPayload) {
    EXPECT_EQ(printable(qint64(3)), u"int(3)"_qs);
    EXPECT_EQ(printable(qint64(-9223372036854775807 - 1)), u"int(-9223372036854775808)"_qs);
    EXPECT_EQ(printable(421.5), u"real(421.5)"_qs);
    EXPECT_EQ(printable(421.0), u"real(421.0)"_qs);
    EXPECT_EQ(printable(0.1), u"real(0.1)"_qs);
    EXPECT_EQ(printable(u"Gecko"_qs), u"text(\"Gecko\")"_qs);
    EXPECT_EQ(printable(u"Bärtel %1"_qs), u"text(\"Bärtel %1\")"_qs);
    EXPECT_EQ(printable(QByteArray(2048, 'x')), u"blob(2048 bytes)"_qs);
    EXPECT_EQ(printable(QByteArray()), u"blob(0 bytes)"_qs);
    EXPECT_EQ(printable(SQLNull()), u"null"_qs);
}

TEST(SQLValue, EscapesQuotesAndBackslashes) {
    EXPECT_EQ(printable(uR"(say "hi" \ bye)"_qs), uR"(text("say \"hi\" \\ bye"))"_qs);
}

TEST(SQLValue, PrintsDifferentValuesDifferently) {
    const double infinity = std::numeric_limits<double>::infinity();
    const QList<SQLValue> values = {
        qint64(3),
        qint64(-3),
        qint64(0),
        3.0,
        -3.0,
        0.0,
        -0.0,
        3.5,
        std::nextafter(3.5, 4),
        infinity,
        -infinity,
        u"3"_qs,
        u"3.0"_qs,
        u""_qs,
        u"null"_qs,
        u"int(3)"_qs,
        uR"(a")"_qs,
        uR"(a\")"_qs,
        uR"(a\\")"_qs,
        uR"(a\)"_qs,
        uR"(a\\)"_qs,
        uR"(")"_qs,
        uR"("")"_qs,
        u"a|b"_qs,
        u"a\nb"_qs,
        uR"(a\nb)"_qs,
        QByteArray(3, 'a'),
        QByteArray(4, 'a'),
        QByteArray(),
        SQLNull(),
    };
    QSet<QString> printed;
    for (const SQLValue& value : values)
        printed.insert(printable(value));
    EXPECT_EQ(printed.size(), values.size());
}

} // namespace
} // namespace ormiva
