#pragma once

#include "AppModel.h"
#include "OMStore.h"

namespace ormiva {

/// Asks before the row of a log is deleted: "Delete {title}?". A failure becomes the model's message. `store`
/// must live as long as the question waits.
template <OMRecord T>
void deleteEntry(AppModel& model, OMStore& store, qint64 id, const QString& title) {
    model.askDelete(title, {}, [&model, &store, id] { model.act([&] { store.remove<T>(id); }); });
}

} // namespace ormiva
