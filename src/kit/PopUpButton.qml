import QtQuick
import Ormiva.Kit

// A button that shows what is chosen, and opens a pop-up in which another is chosen.
FocusItem {
    id: button

    default property alias content: body.data
    property string text
    // What a screen reader calls the control, and what it adds.
    property string controlName
    property string controlHelp
    property bool opened: false
    readonly property alias hovered: mouse.containsMouse
    readonly property bool down: mouse.pressed || opened

    // By the mouse or by a key that presses buttons.
    signal pressed(byKeyboard: bool)

    implicitHeight: 30
    opacity: enabled ? 1 : 0.4
    Accessible.name: controlName === "" ? text : controlName + ": " + text
    Accessible.description: controlHelp
    Accessible.focusable: true
    Accessible.onPressAction: pressed(true)
    Keys.onSpacePressed: pressed(true)
    Keys.onReturnPressed: pressed(true)
    Keys.onEnterPressed: pressed(true)

    Plate {
        anchors.fill: parent
        radius: 10
        rimWidth: 0.5
        rim: VLUI.at("white", button.hovered || button.down ? 0.5 : 0.35)
        upper: VLUI.mix(VLUI.panelTop, "white", button.down ? 0.02 : button.hovered ? 0.17 : 0.09)
        lower: VLUI.mix(VLUI.panelBottom, "white", button.down ? 0 : button.hovered ? 0.1 : 0.03)

        FocusRing {
            shown: button.visualFocus
            corner: parent.radius
            reach: 2
        }
    }

    Item {
        id: body

        anchors.fill: parent
        anchors.leftMargin: 10
        anchors.rightMargin: 8
    }

    MouseArea {
        id: mouse

        anchors.fill: parent
        hoverEnabled: true
        onClicked: button.pressed(false)
    }
}
