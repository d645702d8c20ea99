#include "SpeciesChoices.h"

#include "CareLibrary.h"

#include <QCollator>

#include <algorithm>

namespace ormiva {

SpeciesChoices::SpeciesChoices(QObject* parent)
    : ChoiceModel(QString(), parent) {
    reload();
}

QList<Choice> SpeciesChoices::entries() const {
    QList<Choice> entries;
    for (const Species& species : CareLibrary::shared().species())
        entries.append({species.id, species.name, species.art, species.palette});
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::stable_sort(entries.begin(), entries.end(), [&](const Choice& a, const Choice& b) {
        return collator.compare(a.title, b.title) < 0;
    });
    return entries;
}

} // namespace ormiva
