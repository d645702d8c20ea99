import QtQuick
import Ormiva.Kit

// A symbol and a title side by side, in the middle of a button.
Item {
    id: label

    property string symbol
    property string text
    property real size: 12.5
    property color color: VLUI.text

    implicitWidth: row.implicitWidth
    implicitHeight: row.implicitHeight

    Row {
        id: row

        anchors.centerIn: parent
        spacing: 7

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            visible: name !== ""
            name: label.symbol
            size: label.size + 2
            color: label.color
        }
        OMText {
            anchors.verticalCenter: parent.verticalCenter
            text: label.text
            size: label.size
            font.weight: Font.DemiBold
            color: label.color
        }
    }
}
