#include "Species.h"

#include <QSet>

namespace ormiva {

CitedText Species::field(CareField field) const {
    return fields.value(info(field).id);
}

QStringList Species::sourceKeys() const {
    QStringList keys;
    QSet<QString> seen;
    for (const CareFieldInfo& entry : allCareFields())
        for (const QString& key : field(entry.field).s)
            if (!seen.contains(key)) {
                seen.insert(key);
                keys.append(key);
            }
    return keys;
}

QString Species::allText() const {
    QStringList texts = {name, scientific, summary, limited.value_or(QString())};
    for (const CareFieldInfo& entry : allCareFields())
        texts.append(field(entry.field).t);
    return texts.join(u'\n');
}

} // namespace ormiva
