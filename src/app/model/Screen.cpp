#include "Screen.h"

namespace ormiva {

QString ScreenInfo::shortcut() const {
    return QStringLiteral("Ctrl+%1").arg(static_cast<int>(screen) + 1);
}

const std::array<ScreenInfo, 8>& allScreens() {
    using enum Screen;
    static const std::array<ScreenInfo, 8> table = {{
        {Home, QStringLiteral("home"), QStringLiteral("Home"), QStringLiteral("sun.horizon.fill")},
        {Library, QStringLiteral("library"), QStringLiteral("Species Library"),
         QStringLiteral("books.vertical.fill")},
        {Symptoms, QStringLiteral("symptoms"), QStringLiteral("Symptom Checker"),
         QStringLiteral("stethoscope")},
        {Pets, QStringLiteral("pets"), QStringLiteral("My Pets"), QStringLiteral("pawprint.fill")},
        {Calendar, QStringLiteral("calendar"), QStringLiteral("Care Calendar"), QStringLiteral("calendar")},
        {Checklist, QStringLiteral("checklist"), QStringLiteral("Enclosure Checklist"),
         QStringLiteral("checklist")},
        {Vets, QStringLiteral("vets"), QStringLiteral("Find a Vet & Emergencies"),
         QStringLiteral("cross.case.fill")},
        {Settings, QStringLiteral("settings"), QStringLiteral("Settings & Backup"),
         QStringLiteral("gearshape.fill")},
    }};
    return table;
}

const ScreenInfo& info(Screen screen) {
    return allScreens().at(static_cast<std::size_t>(screen));
}

std::optional<Screen> screen(const QString& id) {
    for (const ScreenInfo& entry : allScreens())
        if (entry.id == id)
            return entry.screen;
    return std::nullopt;
}

QString ScreenGroup::id() const {
    QString id = name;
    for (const Screen entry : screens)
        id += info(entry).id;
    return id;
}

const QList<ScreenGroup>& screenGroups() {
    using enum Screen;
    static const QList<ScreenGroup> groups = {
        {QStringLiteral("Learn"), {Home, Library, Symptoms}},
        {QStringLiteral("My Animals"), {Pets, Calendar, Checklist}},
        {QStringLiteral("Help"), {Vets}},
        {QString(), {Settings}},
    };
    return groups;
}

} // namespace ormiva
