import QtQuick
import Ormiva.Kit

// A message that waits for an answer: one button, or two when `cancelTitle` is given.
OMDialog {
    id: alert

    property string title
    property string message
    property string buttonTitle: qsTr("OK")
    property string cancelTitle
    property bool destructive: false

    signal accepted()
    signal rejected()

    name: title
    onEscaped: rejected()
    // What destroys something isn't under the key that everybody presses first.
    onOpened: (destructive ? cancel : confirm).forceActiveFocus(Qt.TabFocusReason)

    Column {
        width: parent.width
        spacing: 14

        OMText {
            width: parent.width
            text: alert.title
            size: 16
            font.weight: Font.Bold
            wrapMode: Text.Wrap
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        OMScroll {
            width: parent.width
            height: Math.min(body.implicitHeight, Math.max(60, alert.room - 160))
            padding: 0
            name: alert.title

            CareText {
                id: body

                width: parent.width - 12
                careText: alert.message
                size: 13
            }
        }

        Row {
            anchors.right: parent.right
            spacing: 10

            VLChromeButton {
                id: cancel

                visible: text !== ""
                text: alert.cancelTitle
                onClicked: alert.rejected()
            }
            VLChromeButton {
                id: confirm

                text: alert.buttonTitle
                prominent: true
                tint: alert.destructive ? VLUI.emergency : VLUI.accent
                onClicked: alert.accepted()
            }
        }
    }
}
