import QtQuick
import Ormiva.Kit

// What scrollers and lists have in common: the wheel, the finger and the keys move the Flickable inside, and a ring
// shows when the keyboard is here.
Item {
    id: area

    required property Flickable target
    property alias motor: motor
    // What a screen reader calls the area.
    property string name
    property real padding: 24
    property real maximumWidth: 1280
    readonly property real contentWidth: Math.min(maximumWidth, width - 2 * padding)
    readonly property bool overflowing: target.contentHeight > target.height

    activeFocusOnTab: overflowing
    Accessible.role: Accessible.Pane
    Accessible.name: name
    Accessible.focusable: overflowing

    Keys.onPressed: event => {
        if (event.modifiers === Qt.NoModifier || event.modifiers === Qt.KeypadModifier)
            event.accepted = motor.key(event.key)
    }

    ScrollMotor {
        id: motor

        target: area.target
    }

    WheelScroll {
        motor: area.motor
    }

    TouchScroll {
        motor: area.motor
    }

    FocusRing {
        z: 1
        shown: area.activeFocus
        corner: 8
        reach: -2
    }
}
