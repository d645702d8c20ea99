import QtQuick
import QtQuick.Templates as T
import Ormiva.Kit
import Ormiva.Screens

// The menus of the main window.
OMMenuBar {
    OMMenu {
        title: qsTr("File")
        zoomed: false

        OMMenuItem {
            action: T.Action {
                text: qsTr("New Pet…")
                shortcut: "Ctrl+N"
                onTriggered: AppModel.editNewPet()
            }
        }
        OMMenuSeparator {}
        OMMenuItem {
            action: T.Action {
                text: qsTr("Quit")
                shortcut: "Ctrl+Q"
                onTriggered: Qt.quit()
            }
        }
    }

    OMMenu {
        title: qsTr("Go")
        zoomed: false

        Repeater {
            model: Screens.all

            OMMenuItem {
                required property screenInfo modelData

                text: modelData.title
                keys: modelData.shortcut
                onTriggered: AppModel.screen = modelData.id
            }
        }
    }

    OMMenu {
        title: qsTr("Theme")
        zoomed: false

        Repeater {
            model: VLUI.themes

            OMMenuItem {
                required property themeChoice modelData

                text: modelData.name
                checked: modelData.id === VLUI.currentThemeID
                onTriggered: VLUI.chooseTheme(modelData.id)
            }
        }
    }
}
