#include "SQLPrinters.h"

#include <limits>

namespace ormiva {
namespace {

SQLRow row(const SQLValue& value) {
    return {{{u"c"_qs, value}}};
}

/// What every accessor gives for one value.
struct Readings {
    std::optional<qint64> integer;
    std::optional<double> real;
    std::optional<QString> string;
    QString str;
    std::optional<QByteArray> data;
    bool boolean = false;

    friend bool operator==(const Readings&, const Readings&) = default;
    friend void PrintTo(const Readings& r, std::ostream* out) {
        *out << ::testing::PrintToString(r.integer) << ' ' << ::testing::PrintToString(r.real) << ' '
             << ::testing::PrintToString(r.string) << ' ' << ::testing::PrintToString(r.str) << ' '
             << ::testing::PrintToString(r.data) << ' ' << r.boolean;
    }
};

Readings readings(const SQLRow& row, const QString& column = u"c"_qs) {
    return {row.integer(column), row.real(column), row.string(column),
            row.str(column),     row.data(column), row.boolean(column)};
}

Readings ofNumber(std::optional<qint64> integer, std::optional<double> real, const QString& text,
                  bool boolean) {
    return {integer, real, text, text, std::nullopt, boolean};
}

TEST(SQLRow, ReadsIntegers) {
    EXPECT_EQ(readings(row(qint64(42))), ofNumber(42, 42.0, u"42"_qs, true));
    EXPECT_EQ(readings(row(qint64(0))), ofNumber(0, 0.0, u"0"_qs, false));
    EXPECT_EQ(readings(row(qint64(-1))), ofNumber(-1, -1.0, u"-1"_qs, true));
    constexpr qint64 most = std::numeric_limits<qint64>::max();
    EXPECT_EQ(readings(row(most)), ofNumber(most, 9223372036854775807.0, u"9223372036854775807"_qs, true));
}

TEST(SQLRow, ReadsReals) {
    EXPECT_EQ(readings(row(3.9)), ofNumber(3, 3.9, u"3.9"_qs, true));
    EXPECT_EQ(readings(row(-3.9)), ofNumber(-3, -3.9, u"-3.9"_qs, true));
    EXPECT_EQ(readings(row(421.0)), ofNumber(421, 421.0, u"421.0"_qs, true));
    EXPECT_EQ(readings(row(0.9)), ofNumber(0, 0.9, u"0.9"_qs, false));
    constexpr qint64 most = std::numeric_limits<qint64>::max();
    EXPECT_EQ(readings(row(1e19)), ofNumber(most, 1e19, u"10000000000000000000.0"_qs, true));
}

TEST(SQLRow, ReadsTexts) {
    EXPECT_EQ(readings(row(u"1"_qs)), ofNumber(1, 1.0, u"1"_qs, true));
    EXPECT_EQ(readings(row(u"+12"_qs)), ofNumber(12, 12.0, u"+12"_qs, true));
    EXPECT_EQ(readings(row(u"-12"_qs)), ofNumber(-12, -12.0, u"-12"_qs, true));
    EXPECT_EQ(readings(row(u"0"_qs)), ofNumber(0, 0.0, u"0"_qs, false));
    EXPECT_EQ(readings(row(u"12.5"_qs)), ofNumber(std::nullopt, 12.5, u"12.5"_qs, false));
    EXPECT_EQ(readings(row(u"1e2"_qs)), ofNumber(std::nullopt, 100.0, u"1e2"_qs, false));
    EXPECT_EQ(readings(row(u"12,5"_qs)), ofNumber(std::nullopt, std::nullopt, u"12,5"_qs, false));
    EXPECT_EQ(readings(row(u" 1"_qs)), ofNumber(std::nullopt, std::nullopt, u" 1"_qs, false));
    EXPECT_EQ(readings(row(u"0x1"_qs)), ofNumber(std::nullopt, std::nullopt, u"0x1"_qs, false));
    EXPECT_EQ(readings(row(u"abc"_qs)), ofNumber(std::nullopt, std::nullopt, u"abc"_qs, false));
    EXPECT_EQ(readings(row(u""_qs)), ofNumber(std::nullopt, std::nullopt, u""_qs, false));
    EXPECT_EQ(readings(row(u"9223372036854775808"_qs)),
              ofNumber(std::nullopt, 9223372036854775808.0, u"9223372036854775808"_qs, false));
    EXPECT_EQ(readings(row(u"1e999"_qs)), ofNumber(std::nullopt, std::nullopt, u"1e999"_qs, false));
}

TEST(SQLRow, ReadsBlobsAsDataAlone) {
    EXPECT_EQ(readings(row(QByteArray("12"))), (Readings{{}, {}, {}, {}, QByteArray("12"), false}));
    EXPECT_EQ(readings(row(QByteArray())), (Readings{{}, {}, {}, {}, QByteArray(), false}));
}

TEST(SQLRow, ReadsNullsAsAbsent) {
    EXPECT_EQ(readings(row(SQLNull())), Readings());
    EXPECT_EQ(readings(row(SQLNull())).str, QString());
}

TEST(SQLRow, ReadsAnAbsentColumnAsANull) {
    EXPECT_EQ(readings(row(qint64(1)), u"other"_qs), Readings());
    EXPECT_EQ(readings(SQLRow()), Readings());
    EXPECT_EQ(readings(row(qint64(1)), u"C"_qs), Readings());
}

} // namespace
} // namespace ormiva
