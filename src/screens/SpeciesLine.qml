import QtQuick
import Ormiva.Art
import Ormiva.Kit

// A species in one line: its drawing, its name and its scientific name.
Item {
    id: line

    property string name
    property string scientific
    property bool selected: false
    property alias art: icon.art
    property alias palette: icon.palette

    SpeciesIcon {
        id: icon

        x: 20
        anchors.verticalCenter: parent.verticalCenter
        size: 40
    }

    Column {
        anchors.left: icon.right
        anchors.leftMargin: 12
        anchors.right: parent.right
        anchors.rightMargin: 24
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        OMText {
            width: parent.width
            text: line.name
            size: 13.5
            font.weight: Font.Bold
            elide: Text.ElideRight
        }
        OMText {
            width: parent.width
            text: line.scientific
            size: 11
            font.italic: true
            color: line.selected ? VLUI.text : VLUI.dim
            elide: Text.ElideRight
        }
    }
}
