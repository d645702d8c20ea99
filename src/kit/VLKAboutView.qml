import QtQuick
import Ormiva.Art
import Ormiva.Kit

// What the program is, in one centred column.
Item {
    id: about

    implicitWidth: 440
    implicitHeight: column.implicitHeight + 56

    Column {
        id: column

        anchors.centerIn: parent
        width: parent.width - 48
        spacing: 7

        ProgramIcon {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 84
            height: 84
        }
        OMText {
            width: parent.width
            text: OMInfo.appName
            size: 24
            font.weight: Font.Bold
            horizontalAlignment: Text.AlignHCenter
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        OMText {
            width: parent.width
            text: VLKAbout.version
            size: 12
            horizontalAlignment: Text.AlignHCenter
        }

        Repeater {
            model: VLKAbout.extraLines

            OMText {
                required property string modelData

                width: column.width
                text: modelData
                size: 12
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
            }
        }

        Rectangle {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 30
            height: 1
            color: VLUI.at("white", 0.35)
        }
        OMText {
            width: parent.width
            text: OMInfo.creditLine
            horizontalAlignment: Text.AlignHCenter
        }
        LinkButton {
            anchors.horizontalCenter: parent.horizontalCenter
            text: VLKAbout.websiteName
            url: VLKAbout.website
        }
        OMText {
            width: parent.width
            text: VLKAbout.closingLine()
            size: 10.5
            horizontalAlignment: Text.AlignHCenter
        }
    }
}
