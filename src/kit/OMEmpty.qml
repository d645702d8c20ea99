import QtQuick
import Ormiva.Kit

// An empty state: what is missing, and what to do about it.
Item {
    id: empty

    property string symbol
    property string title
    property string message

    implicitWidth: 320
    implicitHeight: column.implicitHeight + 44
    Accessible.role: Accessible.StaticText
    Accessible.name: title + ". " + message

    Column {
        id: column

        anchors.centerIn: parent
        width: Math.min(360, parent.width - 44)
        spacing: 8

        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            name: empty.symbol
            size: 30
            color: VLUI.dim
        }
        OMText {
            width: parent.width
            topPadding: 4
            text: empty.title
            size: 15
            font.weight: Font.DemiBold
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        OMText {
            width: parent.width
            text: empty.message
            size: 12.5
            color: VLUI.dim
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            lineHeight: 1.15
            Accessible.ignored: true
        }
    }
}
