#include "Screen.h"

#include "Printers.h"

#include <tuple>

namespace ormiva {
namespace {

TEST(Screen, HasItsTableInTheOrderOfTheGoMenu) {
    using Row = std::tuple<Screen, QString, QString, QString, QString>;
    const QList<Row> expected = {
        {Screen::Home, u"home"_qs, u"Home"_qs, u"sun.horizon.fill"_qs, u"Ctrl+1"_qs},
        {Screen::Library, u"library"_qs, u"Species Library"_qs, u"books.vertical.fill"_qs, u"Ctrl+2"_qs},
        {Screen::Symptoms, u"symptoms"_qs, u"Symptom Checker"_qs, u"stethoscope"_qs, u"Ctrl+3"_qs},
        {Screen::Pets, u"pets"_qs, u"My Pets"_qs, u"pawprint.fill"_qs, u"Ctrl+4"_qs},
        {Screen::Calendar, u"calendar"_qs, u"Care Calendar"_qs, u"calendar"_qs, u"Ctrl+5"_qs},
        {Screen::Checklist, u"checklist"_qs, u"Enclosure Checklist"_qs, u"checklist"_qs, u"Ctrl+6"_qs},
        {Screen::Vets, u"vets"_qs, u"Find a Vet & Emergencies"_qs, u"cross.case.fill"_qs, u"Ctrl+7"_qs},
        {Screen::Settings, u"settings"_qs, u"Settings & Backup"_qs, u"gearshape.fill"_qs, u"Ctrl+8"_qs},
    };
    QList<Row> rows;
    for (const ScreenInfo& entry : allScreens())
        rows.append({entry.screen, entry.id, entry.title, entry.symbol, entry.shortcut()});
    EXPECT_EQ(rows, expected);
}

TEST(Screen, IsFoundByItsRawValue) {
    for (const ScreenInfo& entry : allScreens()) {
        EXPECT_EQ(screen(entry.id), entry.screen);
        EXPECT_EQ(info(entry.screen).id, entry.id);
    }
    EXPECT_EQ(screen(u"Home"_qs), std::nullopt);
    EXPECT_EQ(screen(QString()), std::nullopt);
}

TEST(ScreenGroup, ListsTheSideRail) {
    using Row = std::pair<QString, QList<Screen>>;
    const QList<Row> expected = {
        {u"Learn"_qs, {Screen::Home, Screen::Library, Screen::Symptoms}},
        {u"My Animals"_qs, {Screen::Pets, Screen::Calendar, Screen::Checklist}},
        {u"Help"_qs, {Screen::Vets}},
        {QString(), {Screen::Settings}},
    };
    QList<Row> rows;
    for (const ScreenGroup& group : screenGroups())
        rows.append({group.name, group.screens});
    EXPECT_EQ(rows, expected);
}

TEST(ScreenGroup, IsIdentifiedByItsNameAndItsScreens) {
    QStringList ids;
    for (const ScreenGroup& group : screenGroups())
        ids.append(group.id());
    EXPECT_EQ(ids, QStringList({u"Learnhomelibrarysymptoms"_qs, u"My Animalspetscalendarchecklist"_qs,
                                u"Helpvets"_qs, u"settings"_qs}));
}

} // namespace
} // namespace ormiva
