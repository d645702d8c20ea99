import QtQuick
import Ormiva.Kit
import Ormiva.Screens

// The way to every screen.
OMMenu {
    title: qsTr("Go")
    zoomed: false

    Repeater {
        model: Screens.all

        OMMenuItem {
            required property screenInfo modelData

            text: modelData.title
            keys: modelData.shortcut
            checked: modelData.id === AppModel.screen
            onTriggered: AppModel.screen = modelData.id
        }
    }
}
