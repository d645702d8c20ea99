import QtQuick
import Ormiva.Kit
import Ormiva.Screens

// The way to every screen.
OMMenu {
    id: menu

    title: qsTr("Go")
    zoomed: false

    Repeater {
        model: menu.wanted ? Screens.all : []

        OMMenuItem {
            required property screenInfo modelData

            text: modelData.title
            keys: modelData.shortcut
            checked: modelData.id === AppModel.screen
            onTriggered: AppModel.screen = modelData.id
        }
    }
}
