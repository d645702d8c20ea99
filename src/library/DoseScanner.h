#pragma once

#include "CareLibrary.h"

#include <QList>
#include <QRegularExpression>
#include <QString>
#include <QStringList>

#include <array>

/// Recognises wording that looks like a medicine dose, to prove that the program's own words hold none. What
/// a keeper types is never scanned.
namespace ormiva::DoseScanner {

/// Amounts in a drug unit, rates by body weight in signs and in words, liquid volumes, a prescriber's
/// intervals, counts of pills with a frequency. Bare grams are not among them.
const std::array<QRegularExpression, 6>& patterns();

/// Every piece of `text` that a pattern matches, pattern by pattern, by position within one. A piece that
/// two patterns match stands there twice. Empty: no dose wording.
QStringList findings(const QString& text);

struct ShippedText {
    QString label; ///< "species {id}", "symptom {id}", "rule {id}" or "help {id}"
    QString content;

    friend bool operator==(const ShippedText&, const ShippedText&) = default;
};

/// All words that the program ships: the library's sheets, signs and rules, then the help topics.
QList<ShippedText> shippedTexts(const CareLibrary& library = CareLibrary::shared());

} // namespace ormiva::DoseScanner
