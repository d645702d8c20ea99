import QtQuick
import Ormiva.Kit

// The themes, the one in use checked.
OMMenu {
    id: menu

    title: qsTr("Theme")
    zoomed: false

    Repeater {
        model: menu.wanted ? VLUI.themes : []

        OMMenuItem {
            required property themeChoice modelData

            text: modelData.name
            checked: modelData.id === VLUI.currentThemeID
            onTriggered: VLUI.chooseTheme(modelData.id)
        }
    }
}
