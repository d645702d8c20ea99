import QtQuick
import Ormiva.Kit

// What a button of the side rail says.
Item {
    id: line

    property string symbol
    property string title
    property bool selected: false

    Symbol {
        id: icon

        x: 10
        anchors.verticalCenter: parent.verticalCenter
        name: line.symbol
        size: 17
        color: line.selected ? VLUI.inkOn(VLUI.accent) : VLUI.dim
    }
    OMText {
        anchors.left: icon.right
        anchors.leftMargin: 11
        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        text: line.title
        size: 13
        font.weight: line.selected ? Font.DemiBold : Font.Medium
        color: line.selected ? VLUI.inkOn(VLUI.accent) : VLUI.text
        elide: Text.ElideRight
    }
}
