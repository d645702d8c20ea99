#include "PetChoices.h"

#include "OMStore.h"

namespace ormiva {

PetChoices::PetChoices(QObject* parent)
    : ChoiceModel(qint64(0), parent) {
    if (const OMStore* store = OMStore::shared())
        connect(store, &OMStore::revisionChanged, this, &PetChoices::reload);
    reload();
}

QList<Choice> PetChoices::entries() const {
    OMStore* store = OMStore::shared();
    if (!store)
        return {};
    QList<Choice> entries;
    for (const Pet& pet : store->pets()) {
        const auto species = pet.species();
        entries.append({pet.id, tr("%1 (%2)").arg(pet.name, species ? species->name : pet.speciesID)});
    }
    return entries;
}

} // namespace ormiva
