import QtQuick
import QtQuick.Templates as T
import Ormiva.Kit

// A search field with a button that empties it.
FocusScope {
    id: field

    property alias prompt: input.placeholderText
    property alias text: input.text
    property alias input: input

    signal accepted()

    implicitWidth: 260
    implicitHeight: 34

    Plate {
        anchors.fill: parent
        radius: height / 2
        fill: VLUI.at("black", input.activeFocus ? 0.38 : 0.26)
        rimWidth: 1
        rim: VLUI.at("white", hover.hovered ? 0.5 : 0.35)

        FocusRing {
            shown: input.activeFocus
            corner: parent.radius
            reach: 2
        }
    }

    HoverHandler {
        id: hover
    }

    Symbol {
        id: lens

        anchors.left: parent.left
        anchors.leftMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        name: "magnifyingglass"
        size: 16
        color: VLUI.dim
    }

    T.TextField {
        id: input

        anchors.left: lens.right
        anchors.leftMargin: 7
        anchors.right: clear.visible ? clear.left : parent.right
        anchors.rightMargin: clear.visible ? 4 : 12
        height: parent.height
        verticalAlignment: TextInput.AlignVCenter
        focus: true
        activeFocusOnTab: true
        selectByMouse: true
        font.family: VLUI.fontFamily // The platform has a font of its own for fields.
        font.pointSize: 13 * VLUI.pointsPerPixel
        color: VLUI.text
        selectionColor: VLUI.accent
        selectedTextColor: VLUI.inkOn(VLUI.accent)
        clip: true
        Accessible.role: Accessible.EditableText
        Accessible.name: placeholderText
        Accessible.searchEdit: true
        onAccepted: field.accepted()

        OMText {
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width
            visible: input.text === "" && input.preeditText === ""
            text: input.placeholderText
            size: 12.5
            fontSizeMode: Text.HorizontalFit
            minimumPointSize: 10.5 * VLUI.pointsPerPixel
            color: VLUI.dim
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }

    OMButton {
        id: clear

        anchors.right: parent.right
        anchors.rightMargin: 7
        anchors.verticalCenter: parent.verticalCenter
        width: 24
        height: 24
        visible: input.text !== ""
        text: qsTr("Clear search")
        onClicked: {
            input.clear()
            input.forceActiveFocus()
        }
        contentItem: Symbol {
            name: "xmark.circle.fill"
            size: 17
            color: clear.hovered ? VLUI.text : VLUI.dim
        }

        FocusRing {
            shown: clear.visualFocus
            corner: 12
            reach: 0
        }
        OMTipped {
            text: clear.text
            shown: clear.hovered || clear.visualFocus
        }
    }
}
