import QtQuick
import Ormiva.Kit

// The ring around what the keyboard acts on. It lies just outside its parent.
Plate {
    property bool shown: false
    property real reach: 3
    property real corner: 10

    anchors.fill: parent
    anchors.margins: -reach
    visible: shown
    radius: corner + reach
    rimWidth: 2
    rim: VLUI.mix(VLUI.accent, "white", 0.7)
}
