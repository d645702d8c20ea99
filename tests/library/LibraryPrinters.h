#pragma once

#include "ContentFolder.h"
#include "Printers.h"
#include "Species.h"
#include "SymptomData.h"

namespace ormiva {

inline void PrintTo(const CitedText& text, std::ostream* out) {
    *out << ::testing::PrintToString(text.t) << ' ' << ::testing::PrintToString(text.s);
}

inline void PrintTo(const Species& animal, std::ostream* out) {
    *out << ::testing::PrintToString(QStringList{animal.id, animal.name, animal.scientific,
                                                 info(animal.group).id, animal.art, animal.summary,
                                                 animal.limited.value_or(QString())})
         << ::testing::PrintToString(animal.palette) << ::testing::PrintToString(animal.fields.keys())
         << ::testing::PrintToString(animal.fields.values());
}

inline void PrintTo(const SymptomDef& sign, std::ostream* out) {
    *out << ::testing::PrintToString(sign.id) << ::testing::PrintToString(sign.label)
         << ::testing::PrintToString(sign.redFlag) << ::testing::PrintToString(sign.groups);
}

inline void PrintTo(const SymptomRule& rule, std::ostream* out) {
    *out << ::testing::PrintToString(rule.id) << ::testing::PrintToString(rule.when)
         << ::testing::PrintToString(rule.species) << ::testing::PrintToString(rule.groups)
         << info(rule.urgency).id.toStdString() << ::testing::PrintToString(rule.causes)
         << ::testing::PrintToString(rule.advice) << ::testing::PrintToString(rule.s);
}

namespace testing {

inline QStringList ids(const QList<Species>& species) {
    QStringList ids;
    for (const Species& animal : species)
        ids.append(animal.id);
    return ids;
}

inline QStringList sorted(QStringList texts) {
    texts.sort();
    return texts;
}

} // namespace testing
} // namespace ormiva
