import QtQuick
import Ormiva.Kit

// A day that may be left open: a toggle and, when it is on, the control for the day.
FocusScope {
    id: picker

    property alias day: optional.day
    property string label
    // What a screen reader calls the controls, and what it adds.
    property string controlName
    property string controlHelp
    readonly property alias toggle: toggle
    readonly property alias control: control

    implicitWidth: toggle.implicitWidth + (control.visible ? 14 + control.implicitWidth : 0)
    implicitHeight: 30

    OptionalDay {
        id: optional
    }

    OMToggle {
        id: toggle

        width: Math.min(implicitWidth, picker.width - (control.visible ? 14 + control.width : 0))
        focus: true
        title: picker.label
        controlName: picker.controlName
        controlHelp: picker.controlHelp
        checked: optional.known
        onToggled: optional.turn(checked)
    }
    OMDayPicker {
        id: control

        anchors.left: toggle.right
        anchors.leftMargin: 14
        visible: optional.known
        controlName: picker.controlName === "" ? picker.label : picker.controlName
        day: optional.shown
        onDayChanged: {
            if (optional.known)
                optional.choose(day)
        }
    }
}
