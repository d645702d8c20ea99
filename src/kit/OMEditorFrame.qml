import QtQuick
import Ormiva.Kit

// The frame of every editor: a heading, the form, and the buttons. A form that is higher than the room scrolls
// between the heading and the buttons.
FocusScope {
    id: frame

    default property alias content: form.data
    property string title
    property string symbol
    property string error
    property string saveTitle: qsTr("Save")
    property alias contentY: scroll.contentY

    signal cancelled()
    signal saved()

    implicitWidth: 560
    implicitHeight: foot.height + form.implicitHeight + heading.height + 16 + 20
    Accessible.role: Accessible.Grouping
    Accessible.name: title

    Keys.onEscapePressed: cancelled()
    Keys.onReturnPressed: saved()
    Keys.onEnterPressed: saved()

    Row {
        id: heading

        width: parent.width
        spacing: 10

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: frame.symbol
            size: 20
            color: VLUI.accent
        }
        OMText {
            width: heading.width - 20 - heading.spacing
            text: frame.title
            size: 19
            font.weight: Font.Bold
            elide: Text.ElideRight
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
    }

    // It reaches beyond the form, so that the rings of its controls and the scroll bar have room.
    OMScroll {
        id: scroll

        anchors.top: heading.bottom
        anchors.bottom: foot.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.topMargin: 16 - padding
        anchors.bottomMargin: 20 - padding
        anchors.leftMargin: -padding
        anchors.rightMargin: -padding
        padding: 14
        name: frame.title
        activeFocusOnTab: false // Its controls are what Tab goes to, and they come into sight.

        Column {
            id: form

            width: parent.width
            spacing: 14
        }
    }

    Rectangle {
        anchors.top: scroll.bottom
        width: parent.width
        height: 1
        visible: scroll.overflowing
        color: VLUI.at("white", 0.14)
    }

    Column {
        id: foot

        anchors.bottom: parent.bottom
        width: parent.width
        spacing: 12

        Item {
            width: parent.width
            height: message.implicitHeight
            visible: frame.error !== ""
            Accessible.role: Accessible.AlertMessage
            Accessible.name: frame.error

            Symbol {
                id: sign

                y: 1
                name: "exclamationmark.triangle.fill"
                size: 16
                color: VLUI.alert
            }
            OMText {
                id: message

                anchors.left: sign.right
                anchors.leftMargin: 8
                anchors.right: parent.right
                text: frame.error
                size: 12.5
                font.weight: Font.DemiBold
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
        }
        Row {
            anchors.right: parent.right
            spacing: 10

            VLChromeButton {
                text: qsTr("Cancel")
                onClicked: frame.cancelled()
            }
            VLChromeButton {
                text: frame.saveTitle
                prominent: true
                onClicked: frame.saved()
            }
        }
    }
}
