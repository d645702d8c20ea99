import QtQuick
import Ormiva.Art
import Ormiva.Kit

// An entry of the open list of a pop-up button.
Item {
    id: row

    required property int index
    required property string title
    required property string art
    required property var palette // a list of texts
    property bool chosen: false
    property bool highlighted: false

    readonly property color ink: highlighted ? "white" : VLUI.text

    signal pressed()
    // The pointer is on the entry, at a place of the window.
    signal pointed(place: point)

    Accessible.role: Accessible.ListItem
    Accessible.name: title
    Accessible.selectable: true
    Accessible.selected: chosen
    Accessible.focusable: true
    Accessible.onPressAction: row.pressed()

    Plate {
        anchors.fill: parent
        radius: 6
        fill: row.highlighted ? VLUI.accent : "transparent"
    }
    Symbol {
        x: 8
        anchors.verticalCenter: parent.verticalCenter
        visible: row.chosen
        name: "checkmark"
        size: 14
        color: row.ink
    }
    SpeciesIcon {
        id: icon

        x: 28
        anchors.verticalCenter: parent.verticalCenter
        visible: row.art !== ""
        size: 24
        art: row.art
        palette: row.palette
    }
    OMText {
        anchors.left: icon.visible ? icon.right : parent.left
        anchors.leftMargin: icon.visible ? 8 : 28
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        text: row.title
        color: row.ink
        elide: Text.ElideRight
    }
    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        onEntered: row.pointed(mapToItem(null, mouseX, mouseY))
        onPositionChanged: row.pointed(mapToItem(null, mouseX, mouseY))
        onClicked: row.pressed()
    }
}
