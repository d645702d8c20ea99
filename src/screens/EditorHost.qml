import QtQuick
import Ormiva.Kit
import Ormiva.Screens

// The modal sheet that holds the editor of a record.
OMDialog {
    id: sheet

    required property string identity

    idealWidth: 560
    name: message.text
    visible: true
    onEscaped: AppModel.closeSheet()
    onOpened: cancel.forceActiveFocus(Qt.TabFocusReason)

    Column {
        width: parent.width
        spacing: 20

        OMText {
            id: message

            width: parent.width
            text: qsTr("This editor is still to come.")
            size: 14
            wrapMode: Text.Wrap
        }
        VLChromeButton {
            id: cancel

            anchors.right: parent.right
            text: qsTr("Cancel")
            onClicked: AppModel.closeSheet()
        }
    }
}
