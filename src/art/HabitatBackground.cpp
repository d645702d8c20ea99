#include "HabitatBackground.h"

#include "Habitat.h"
#include "OMPrefs.h"
#include "VLKThemes.h"

#include <QPainter>

namespace ormiva {

HabitatBackground::HabitatBackground(QQuickItem* parent)
    : CrispItem(parent) {
    setOpaquePainting(true);
    setUnzoomed();
    connect(&OMPrefs::notifier(), &PrefsNotifier::changed, this, [this](const QString& key) {
        if (key == VLKThemes::key)
            update();
    });
}

void HabitatBackground::paint(QPainter* painter) {
    Habitat::paint(*painter, size(), VLKThemes::current());
}

} // namespace ormiva
