#include "Numbers.h"

#include "Printers.h"

#include <QList>
#include <QRegularExpression>

#include <array>
#include <bit>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>

namespace ormiva {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr qint64 least = std::numeric_limits<qint64>::min();
constexpr qint64 most = std::numeric_limits<qint64>::max();

/// The C functions, always in the C locale: what the program's own are compared with.
class PlainC {
public:
    PlainC()
        : m_before(uselocale(m_plain)) {}
    ~PlainC() {
        uselocale(m_before);
        freelocale(m_plain);
    }
    PlainC(const PlainC&) = delete;
    PlainC& operator=(const PlainC&) = delete;

private:
    locale_t m_plain = newlocale(LC_ALL_MASK, "C", nullptr);
    locale_t m_before;
};

QString printed(const char* format, double value) {
    std::array<char, 500> buffer{};
    std::snprintf(buffer.data(), buffer.size(), format, value);
    return QString::fromLatin1(buffer.data());
}

QString randomText(std::mt19937& random, const QString& alphabet, std::size_t longest) {
    QString text(static_cast<qsizetype>(random() % (longest + 1)), u' ');
    for (QChar& c : text)
        c = alphabet.at(static_cast<qsizetype>(random() % static_cast<std::size_t>(alphabet.size())));
    return text;
}

double randomDouble(std::mt19937_64& random) {
    return std::bit_cast<double>(random());
}

TEST(Numbers, RunUnderTheLocaleThatWasAskedFor) {
    const bool german = qgetenv("LC_ALL").startsWith("de_DE");
    EXPECT_STREQ(std::localeconv()->decimal_point, german ? "," : ".");
    EXPECT_EQ(printed("%.1f", 1.5), german ? u"1,5"_qs : u"1.5"_qs);
}

TEST(ParseInteger, ReadsTheWholeTextInBaseTen) {
    const QList<std::pair<QString, qint64>> expected = {
        {u"0"_qs, 0},
        {u"7"_qs, 7},
        {u"+7"_qs, 7},
        {u"-7"_qs, -7},
        {u"-0"_qs, 0},
        {u"007"_qs, 7},
        {u"+0012"_qs, 12},
        {u"42"_qs, 42},
        {u"9223372036854775807"_qs, most},
        {u"-9223372036854775808"_qs, least},
    };
    for (const auto& [text, value] : expected)
        EXPECT_EQ(Numbers::parseInteger(text), value) << text.toStdString();
}

TEST(ParseInteger, IsAbsentForEverythingElse) {
    const QStringList texts = {
        QString(),
        u""_qs,
        u"+"_qs,
        u"-"_qs,
        u"+-1"_qs,
        u"-+1"_qs,
        u"--1"_qs,
        u"++1"_qs,
        u"1-"_qs,
        u" 1"_qs,
        u"1 "_qs,
        u"1\n"_qs,
        u"\t1"_qs,
        u"\u00a01"_qs,
        u"1\u00a0"_qs,
        u"0x10"_qs,
        u"1e3"_qs,
        u"1.0"_qs,
        u"1,000"_qs,
        u"1_000"_qs,
        u"abc"_qs,
        u"1a"_qs,
        u"\u0663"_qs,
        u"\uff11"_qs,
        u"\u22121"_qs,
        u"9223372036854775808"_qs,
        u"-9223372036854775809"_qs,
        u"99999999999999999999999999"_qs,
        QString(u"12"_qs + QChar(0)),
    };
    for (const QString& text : texts)
        EXPECT_EQ(Numbers::parseInteger(text), std::nullopt) << '"' << text.toStdString() << '"';
}

TEST(ParseInteger, AgreesWithASlowReadingOfRandomTexts) {
    std::mt19937 random(1);
    const QRegularExpression form(u"\\A[+-]?[0-9]+\\z"_qs);
    int parsed = 0;
    for (int i = 0; i < 20'000; ++i) {
        const QString text = randomText(random, u"+-0012345678999."_qs, 21);
        std::optional<qint64> expected;
        if (form.match(text).hasMatch()) {
            __extension__ __int128 value = 0;
            for (const QChar c : text)
                if (c.isDigit())
                    value = value * 10 + c.digitValue();
            if (text.startsWith(u'-'))
                value = -value;
            if (value >= least && value <= most)
                expected = static_cast<qint64>(value);
        }
        parsed += expected.has_value();
        ASSERT_EQ(Numbers::parseInteger(text), expected) << '"' << text.toStdString() << '"';
    }
    EXPECT_GT(parsed, 1000);
}

TEST(ParseReal, ReadsDecimalNumbers) {
    const QList<std::pair<QString, double>> expected = {
        {u"0"_qs, 0},
        {u"12"_qs, 12},
        {u"12.5"_qs, 12.5},
        {u"+12.5"_qs, 12.5},
        {u"-12.5"_qs, -12.5},
        {u"1e3"_qs, 1000},
        {u"1E3"_qs, 1000},
        {u"1e+3"_qs, 1000},
        {u"25e-1"_qs, 2.5},
        {u".5"_qs, 0.5},
        {u"5."_qs, 5},
        {u"0.1"_qs, 0.1},
        {u"421.50"_qs, 421.5},
        {u"1e308"_qs, 1e308},
        {u"5e-324"_qs, 5e-324},
        {u"1e-400"_qs, 0},
        {u"-1e-400"_qs, 0},
        {u"1.e-400"_qs, 0},
        {u".1e-400"_qs, 0},
        {u"9007199254740993"_qs, 9007199254740992.0},
        {u"1.7976931348623157e308"_qs, std::numeric_limits<double>::max()},
    };
    for (const auto& [text, value] : expected)
        EXPECT_EQ(Numbers::parseReal(text), value) << text.toStdString();
}

TEST(ParseReal, IsAbsentForEverythingElse) {
    const QStringList texts = {
        QString(),
        u""_qs,
        u"."_qs,
        u"+"_qs,
        u"-."_qs,
        u"e5"_qs,
        u"1e"_qs,
        u"1e+"_qs,
        u"1.2.3"_qs,
        u"12,5"_qs,
        u"1.000,5"_qs,
        u"1,000.5"_qs,
        u" 1"_qs,
        u"1 "_qs,
        u"\u00a01.5"_qs,
        u"1.5\n"_qs,
        u"0x1p3"_qs,
        u"0x10"_qs,
        u"inf"_qs,
        u"INF"_qs,
        u"infinity"_qs,
        u"nan"_qs,
        u"1e309"_qs,
        u"-1e309"_qs,
        u"1.e309"_qs,
        u".1e310"_qs,
        u"+1e309"_qs,
        u"1e999999999999"_qs,
        u"+-1"_qs,
        u"--1"_qs,
        u"1f"_qs,
        u"\u0661.\u0665"_qs,
        QString(u"1.5"_qs + QChar(0)),
    };
    for (const QString& text : texts)
        EXPECT_EQ(Numbers::parseReal(text), std::nullopt) << '"' << text.toStdString() << '"';
}

TEST(ParseReal, AgreesWithTheCLibraryOnRandomTexts) {
    std::mt19937 random(2);
    const QRegularExpression form(u"\\A[+-]?([0-9]+\\.?[0-9]*|\\.[0-9]+)([eE][+-]?[0-9]+)?\\z"_qs);
    const PlainC plain;
    int parsed = 0;
    for (int i = 0; i < 20'000; ++i) {
        const QString text = randomText(random, u"+-00123456789..eE3"_qs, 12);
        std::optional<double> expected;
        if (form.match(text).hasMatch()) {
            const double value = std::strtod(text.toLatin1().constData(), nullptr);
            if (std::isfinite(value))
                expected = value;
        }
        parsed += expected.has_value();
        ASSERT_EQ(Numbers::parseReal(text), expected) << '"' << text.toStdString() << '"';
    }
    EXPECT_GT(parsed, 1000);
}

TEST(Fixed, RoundsTheExactBinaryValueWithTiesToEven) {
    EXPECT_EQ(Numbers::fixed(421, 1), u"421.0"_qs);
    EXPECT_EQ(Numbers::fixed(0.125, 2), u"0.12"_qs);
    EXPECT_EQ(Numbers::fixed(0.375, 2), u"0.38"_qs);
    EXPECT_EQ(Numbers::fixed(2.5, 0), u"2"_qs);
    EXPECT_EQ(Numbers::fixed(3.5, 0), u"4"_qs);
    EXPECT_EQ(Numbers::fixed(1.005, 2), u"1.00"_qs);
    EXPECT_EQ(Numbers::fixed(999.95, 1), u"1000.0"_qs);
    EXPECT_EQ(Numbers::fixed(-0.04, 1), u"-0.0"_qs);
    EXPECT_EQ(Numbers::fixed(1234567.891, 2), u"1234567.89"_qs);
}

TEST(Fixed, PrintsWhatPrintfPrintsInTheCLocale) {
    std::mt19937_64 random(3);
    const PlainC plain;
    const QList<double> odd = {0.0,   -0.0, infinity, -infinity, std::nan(""), 5e-324, 1.7976931348623157e308,
                               -1e300};
    for (int i = 0; i < 5000; ++i) {
        const double value = i < odd.size() ? odd.at(i) : randomDouble(random);
        ASSERT_EQ(Numbers::fixed(value, 0), printed("%.0f", value));
        ASSERT_EQ(Numbers::fixed(value, 1), printed("%.1f", value));
        ASSERT_EQ(Numbers::fixed(value, 2), printed("%.2f", value));
        ASSERT_EQ(Numbers::fixed(value, 3), printed("%.3f", value));
    }
}

TEST(Shortest, KeepsADecimalPointInWholeNumbers) {
    EXPECT_EQ(Numbers::shortest(421), u"421.0"_qs);
    EXPECT_EQ(Numbers::shortest(-3), u"-3.0"_qs);
    EXPECT_EQ(Numbers::shortest(0), u"0.0"_qs);
    EXPECT_EQ(Numbers::shortest(1e15), u"1000000000000000.0"_qs);
}

TEST(Shortest, IsAsShortAsReadingBackAllows) {
    EXPECT_EQ(Numbers::shortest(421.5), u"421.5"_qs);
    EXPECT_EQ(Numbers::shortest(0.1), u"0.1"_qs);
    EXPECT_EQ(Numbers::shortest(-28.349523125), u"-28.349523125"_qs);
    EXPECT_EQ(Numbers::shortest(1.0 / 3), u"0.3333333333333333"_qs);
}

TEST(Shortest, ReadsBackAsTheSameNumber) {
    std::mt19937_64 random(4);
    for (int i = 0; i < 20'000; ++i) {
        const double value = randomDouble(random);
        if (!std::isfinite(value))
            continue;
        const auto back = Numbers::parseReal(Numbers::shortest(value));
        ASSERT_TRUE(back.has_value()) << Numbers::shortest(value).toStdString();
        ASSERT_EQ(std::bit_cast<quint64>(*back), std::bit_cast<quint64>(value));
    }
}

TEST(Shortest, PrintsNegativeZeroApart) {
    EXPECT_EQ(Numbers::shortest(-0.0), u"-0.0"_qs);
}

TEST(Truncated, GoesTowardsZero) {
    EXPECT_EQ(Numbers::truncated(3.9), 3);
    EXPECT_EQ(Numbers::truncated(-3.9), -3);
    EXPECT_EQ(Numbers::truncated(0.999), 0);
    EXPECT_EQ(Numbers::truncated(-0.999), 0);
    EXPECT_EQ(Numbers::truncated(9007199254740992.0), 9007199254740992);
}

TEST(Truncated, StopsAtTheEndsOfTheRange) {
    EXPECT_EQ(Numbers::truncated(infinity), most);
    EXPECT_EQ(Numbers::truncated(9223372036854775808.0), most);
    EXPECT_EQ(Numbers::truncated(1e300), most);
    EXPECT_EQ(Numbers::truncated(-infinity), least);
    EXPECT_EQ(Numbers::truncated(-9223372036854775808.0), least);
    EXPECT_EQ(Numbers::truncated(-1e300), least);
    EXPECT_EQ(Numbers::truncated(std::nan("")), 0);
}

} // namespace
} // namespace ormiva
