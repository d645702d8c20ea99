#include "UnitPairs.h"

#include <QRegularExpression>

#include <array>
#include <cmath>

namespace ormiva::testing {

namespace {

/// How a metric unit converts to the one in brackets, and how far the rounding of the two may put them apart.
struct Conversion {
    QString metric;
    QString customary;
    double factor;
    double offset;
    double absolute;
    double relative;

    double converted(double value) const { return value * factor + offset; }
    bool agree(double value, double other) const {
        return std::abs(converted(value) - other) <=
               std::max(absolute, std::abs(converted(value)) * relative);
    }
};

// Factors: the international yard and pound of 1959, the US gallon of 231 cubic inches.
const std::array<Conversion, 12>& conversions() {
    static const std::array<Conversion, 12> table = {{
        {QStringLiteral("°C"), QStringLiteral("°F"), 1.8, 32, 1.01, 0},
        {QStringLiteral("cm"), QStringLiteral("in"), 1 / 2.54, 0, 0.5, 0.05},
        {QStringLiteral("cm"), QStringLiteral("ft"), 1 / 30.48, 0, 0.1, 0.06},
        {QStringLiteral("mm"), QStringLiteral("in"), 1 / 25.4, 0, 0.06, 0.12},
        {QStringLiteral("m"), QStringLiteral("ft"), 1 / 0.3048, 0, 0.3, 0.06},
        {QStringLiteral("m"), QStringLiteral("in"), 1 / 0.0254, 0, 0.5, 0.05},
        {QStringLiteral("km"), QStringLiteral("mi"), 1 / 1.609344, 0, 0.3, 0.06},
        {QStringLiteral("kg"), QStringLiteral("lb"), 1 / 0.45359237, 0, 0.15, 0.06},
        {QStringLiteral("g"), QStringLiteral("oz"), 1 / 28.349523125, 0, 0.06, 0.06},
        {QStringLiteral("g"), QStringLiteral("lb"), 1 / 453.59237, 0, 0.06, 0.06},
        {QStringLiteral("L"), QStringLiteral("US gal"), 1 / 3.785411784, 0, 0.3, 0.06},
        {QStringLiteral("m²"), QStringLiteral("sq ft"), 10.7639, 0, 0.5, 0.06},
    }};
    return table;
}

/// "30", "2.5", "30–35", "20 to 25", "120 × 60 × 45", "8,000".
const QString figures =
    QStringLiteral("((?:\\d[\\d,.]*)(?:(?:\\s?[–×]\\s?|\\s(?:to|and|or)\\s)\\d[\\d,.]*)*)");

QRegularExpression pairOf(const Conversion& conversion) {
    return QRegularExpression(figures + QStringLiteral("\\s?") + conversion.metric +
                              QStringLiteral("(?![\\w²])[^()\\n\\d]{0,25}\\((?:about |over |under )?") +
                              figures + QStringLiteral("\\s?") + conversion.customary +
                              QStringLiteral("(?![\\w²])"));
}

QList<double> numbers(const QString& text) {
    static const QRegularExpression number(QStringLiteral("\\d[\\d,]*(?:\\.\\d+)?"));
    QList<double> numbers;
    for (const QRegularExpressionMatch& match : number.globalMatch(text))
        numbers.append(match.captured().remove(u',').toDouble());
    return numbers;
}

/// A difference of temperatures, as "5–7 °C cooler (a drop of 9–13 °F)".
QRegularExpression differencePair() {
    return QRegularExpression(figures +
                              QStringLiteral("\\s?°C[^()\\n\\d]{0,25}\\(a (?:drop|difference|rise) of ") +
                              figures + QStringLiteral("\\s?°F"));
}

void compare(UnitPairs& pairs, const QRegularExpressionMatch& match, const Conversion& conversion) {
    const QList<double> metric = numbers(match.captured(1));
    const QList<double> customary = numbers(match.captured(2));
    bool agree = metric.size() == customary.size();
    for (qsizetype i = 0; agree && i < metric.size(); ++i)
        agree = conversion.agree(metric[i], customary[i]);
    pairs.count += static_cast<int>(metric.size());
    if (!agree)
        pairs.wrong.append(match.captured());
}

} // namespace

UnitPairs unitPairs(const QString& text) {
    UnitPairs pairs;
    for (const Conversion& conversion : conversions())
        for (const QRegularExpressionMatch& match : pairOf(conversion).globalMatch(text))
            compare(pairs, match, conversion);
    const Conversion difference{QStringLiteral("°C"), QStringLiteral("°F"), 1.8, 0, 1.01, 0};
    for (const QRegularExpressionMatch& match : differencePair().globalMatch(text))
        compare(pairs, match, difference);
    return pairs;
}

QStringList temperaturesInOneUnit(const QString& text) {
    QString rest = text;
    rest.remove(pairOf(conversions().front()));
    rest.remove(differencePair());
    static const QRegularExpression alone(QStringLiteral("[^\\n]{0,25}°[CF]"));
    QStringList places;
    for (const QRegularExpressionMatch& match : alone.globalMatch(rest))
        places.append(match.captured());
    return places;
}

} // namespace ormiva::testing
