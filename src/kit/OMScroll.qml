import QtQuick
import QtQuick.Templates as T
import Ormiva.Kit

// A vertical scroller that keeps its content at full width.
Item {
    id: scroll

    default property alias content: column.data
    property alias contentY: flick.contentY
    property alias motor: motor
    property real padding: 24
    property alias spacing: column.spacing
    property real maximumWidth: 1280
    // What a screen reader calls the area.
    property string name
    readonly property bool overflowing: flick.contentHeight > flick.height

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

        target: flick
    }

    WheelScroll {
        motor: scroll.motor
    }

    TouchScroll {
        motor: scroll.motor
    }

    Flickable {
        id: flick

        anchors.fill: parent
        interactive: false
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        contentWidth: width
        contentHeight: column.implicitHeight + 2 * scroll.padding
        T.ScrollBar.vertical: OMScrollBar {}

        Column {
            id: column

            x: Math.max(scroll.padding, (flick.width - width) / 2)
            y: scroll.padding
            width: Math.min(scroll.maximumWidth, flick.width - 2 * scroll.padding)
            spacing: 18
        }
    }

    FocusRing {
        shown: scroll.activeFocus
        corner: 8
        reach: -2
    }
}
