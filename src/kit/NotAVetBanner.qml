import QtQuick
import Ormiva.Kit

// The standing reminder that the program is no veterinarian.
Plate {
    id: banner

    property bool compact: false

    implicitHeight: texts.implicitHeight + 2 * (compact ? 12 : 16)
    radius: 12
    fill: VLUI.at(VLUI.alert, 0.16)
    rimWidth: 0.5
    rim: VLUI.at(VLUI.alert, 0.6)
    Accessible.role: Accessible.Note
    Accessible.name: title.text
    Accessible.description: message.text

    Symbol {
        id: icon

        x: banner.compact ? 14 : 18
        y: texts.y + (title.height - height) / 2
        name: "cross.case.fill"
        size: banner.compact ? 14 : 18
        color: VLUI.alert
    }

    Column {
        id: texts

        anchors.left: icon.right
        anchors.leftMargin: 10
        anchors.right: parent.right
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        spacing: 4

        OMText {
            id: title

            width: parent.width
            text: qsTr("Not a substitute for a veterinarian")
            size: banner.compact ? 12 : 13.5
            font.weight: Font.Black
            wrapMode: Text.Wrap
        }
        OMText {
            id: message

            width: parent.width
            text: OMInfo.notAVet
            size: banner.compact ? 11.5 : 12.5
            wrapMode: Text.Wrap
            lineHeight: 1.15
        }
    }
}
