#include "Screens.h"

namespace ormiva {

QList<ScreenInfo> Screens::all() const {
    return {allScreens().begin(), allScreens().end()};
}

QList<RailGroup> Screens::groups() const {
    QList<RailGroup> groups;
    for (const ScreenGroup& group : screenGroups()) {
        RailGroup& shown = groups.emplaceBack(RailGroup{group.name, {}});
        for (const Screen screen : group.screens)
            shown.screens.append(info(screen));
    }
    return groups;
}

ScreenInfo Screens::named(const QString& id) const {
    return info(screen(id).value_or(Screen::Home));
}

} // namespace ormiva
