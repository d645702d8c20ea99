#include "SourceChipList.h"

#include "CareLibrary.h"

#include <algorithm>

namespace ormiva {

QString SourceChip::tip() const {
    QStringList lines;
    for (const SourceRef& source : sources)
        lines.append(QObject::tr("%1 (checked %2)").arg(source.title, source.checked));
    return lines.join(u'\n');
}

QList<SourceChip> sourceChips(const QStringList& keys) {
    QList<SourceChip> chips;
    for (const QString& key : keys) {
        const auto source = CareLibrary::shared().source(key);
        if (!source)
            continue;
        const QString title = source->shortName();
        const auto known = std::find_if(chips.begin(), chips.end(),
                                        [&](const SourceChip& chip) { return chip.title == title; });
        if (known != chips.end())
            known->sources.append(*source);
        else
            chips.append({title, {*source}});
    }
    return chips;
}

SourceChipList::SourceChipList(QObject* parent)
    : QObject(parent) {}

void SourceChipList::setKeys(const QStringList& keys) {
    if (m_keys == keys)
        return;
    m_keys = keys;
    m_chips = sourceChips(keys);
    Q_EMIT keysChanged();
}

} // namespace ormiva
