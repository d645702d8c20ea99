import QtQuick
import Ormiva.Kit

// A day of the month on show, or a blank.
Item {
    id: item

    property monthCell cell
    property bool chosen: false
    property bool ringed: false
    readonly property bool shown: cell.number !== ""

    signal pressed()

    Accessible.ignored: !shown
    Accessible.role: Accessible.Button
    Accessible.name: shown ? cell.day.display : ""
    Accessible.description: cell.today ? qsTr("Today") : ""
    Accessible.focusable: shown
    Accessible.selectable: shown
    Accessible.selected: shown && chosen
    Accessible.onPressAction: item.pressed()

    Plate {
        anchors.fill: parent
        anchors.leftMargin: 3
        anchors.rightMargin: 3
        anchors.topMargin: 1
        anchors.bottomMargin: 1
        visible: item.shown
        radius: 8
        fill: item.chosen ? VLUI.accent : VLUI.at("white", mouse.pressed ? 0.2 : mouse.containsMouse ? 0.1 : 0)
        rimWidth: item.cell.today ? 1 : 0
        rim: VLUI.at("white", 0.6)

        FocusRing {
            shown: item.ringed
            corner: 8
            reach: 1
        }
    }
    OMText {
        anchors.centerIn: parent
        text: item.cell.number
        size: 12.5
        font.weight: item.cell.today || item.chosen ? Font.Bold : Font.Normal
        color: item.chosen ? "white" : VLUI.text
        Accessible.ignored: true
    }
    MouseArea {
        id: mouse

        anchors.fill: parent
        enabled: item.shown
        hoverEnabled: true
        onClicked: item.pressed()
    }
}
