import QtQuick
import QtQuick.Templates as T
import Ormiva.Kit

// How large everything is shown.
OMMenu {
    title: qsTr("View")
    zoomed: false

    OMMenuItem {
        action: T.Action {
            text: qsTr("Zoom In")
            shortcut: "Ctrl++"
            onTriggered: VLUI.zoomIn()
        }
    }
    OMMenuItem {
        action: T.Action {
            text: qsTr("Zoom Out")
            shortcut: "Ctrl+-"
            onTriggered: VLUI.zoomOut()
        }
    }
    OMMenuItem {
        action: T.Action {
            text: qsTr("Actual Size (100%)")
            shortcut: "Ctrl+0"
            onTriggered: VLUI.zoomTo(100)
        }
    }
    OMMenu {
        title: qsTr("Zoom Level")
        zoomed: false

        Repeater {
            model: VLUI.zoomLevels

            OMMenuItem {
                required property int modelData

                text: VLUI.zoomLevelTitle(modelData)
                checked: Math.round(VLUI.zoom * 100) === modelData
                onTriggered: VLUI.zoomTo(modelData)
            }
        }
    }
}
