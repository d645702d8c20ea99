#include "DoseScanner.h"

#include "VLKHelp.h"

namespace ormiva::DoseScanner {

namespace {

/// Letters, digits and word boundaries are those of Unicode, so that a micro sign begins a word.
QRegularExpression compiled(const QString& pattern) {
    QRegularExpression expression(pattern, QRegularExpression::CaseInsensitiveOption |
                                               QRegularExpression::UseUnicodePropertiesOption);
    if (!expression.isValid())
        qFatal("The dose pattern %s is wrong: %s", qPrintable(pattern), qPrintable(expression.errorString()));
    return expression;
}

} // namespace

const std::array<QRegularExpression, 6>& patterns() {
    // Both micro signs stand in the lists: U+00B5 and U+03BC.
    static const std::array<QRegularExpression, 6> compiledOnce = {
        compiled(QStringLiteral(R"(\b\d+(\.\d+)?\s*(mg|mcg|)"
                                u"\u00B5g|\u03BCg"
                                R"(|iu|ug)\b)")),
        compiled(QStringLiteral(R"(\b(mg|mcg|)"
                                u"\u00B5g|\u03BCg"
                                R"(|ml|g|iu|units?)\s*/\s*(kg|lb|kilogram))")),
        compiled(QStringLiteral(R"(\bper\s+(kg|kilogram|pound)\s+(of\s+)?body\s*weight)")),
        compiled(QStringLiteral(R"(\b\d+(\.\d+)?\s*(ml|cc)\b)")),
        compiled(QStringLiteral(R"(\bq\s?\d{1,2}\s?h\b)")),
        compiled(QStringLiteral(R"(\b\d+(\.\d+)?\s*(tablets?|capsules?|drops)\s+(once|twice|daily|every))")),
    };
    return compiledOnce;
}

QStringList findings(const QString& text) {
    // Half a surrogate pair would end the search; it is replaced by another character of the same length.
    const QString valid = QString::fromUtf8(text.toUtf8());
    QStringList found;
    for (const QRegularExpression& pattern : patterns())
        for (const QRegularExpressionMatch& match : pattern.globalMatch(valid))
            found.append(text.mid(match.capturedStart(), match.capturedLength()));
    return found;
}

QList<ShippedText> shippedTexts(const CareLibrary& library) {
    QList<ShippedText> texts;
    for (const Species& animal : library.species())
        texts.append({QStringLiteral("species ") + animal.id, animal.allText()});
    for (const SymptomDef& sign : library.symptoms())
        texts.append({QStringLiteral("symptom ") + sign.id, sign.label});
    for (const SymptomRule& rule : library.rules())
        texts.append(
            {QStringLiteral("rule ") + rule.id, (QStringList{rule.advice} + rule.causes).join(u'\n')});
    for (const VLKHelpTopic& topic : VLKHelp::allTopics())
        texts.append({QStringLiteral("help ") + topic.id, topic.title + u'\n' + topic.body});
    return texts;
}

} // namespace ormiva::DoseScanner
