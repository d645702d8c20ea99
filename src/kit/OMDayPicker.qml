import QtQuick
import Ormiva.Kit

// A compact control for a day: it shows the day, and opens a month in which another is chosen.
PopUpButton {
    id: button

    property alias day: month.day
    readonly property MonthPanel panel: opener.item as MonthPanel

    text: day.display
    opened: panel !== null
    implicitWidth: Math.ceil(icon.width + 8 + label.implicitWidth) + 20
    Accessible.role: Accessible.ButtonDropDown

    function open(byKeyboard: bool) {
        opener.active = true
        panel.byKeyboard = byKeyboard
    }

    onPressed: byKeyboard => {
        if (panel)
            panel.close()
        else
            open(byKeyboard)
    }
    Keys.onPressed: event => {
        if (event.modifiers & ~(Qt.KeypadModifier | Qt.AltModifier))
            return
        event.accepted = true
        switch (event.key) {
        case Qt.Key_Down:
        case Qt.Key_Up:
            open(true)
            break
        case Qt.Key_Left:
            month.step(-1)
            break
        case Qt.Key_Right:
            month.step(1)
            break
        default:
            event.accepted = false
        }
    }

    MonthGrid {
        id: month
    }

    Symbol {
        id: icon

        anchors.verticalCenter: parent.verticalCenter
        name: "calendar"
        size: 16
        color: button.hovered ? VLUI.text : VLUI.dim
    }
    OMText {
        id: label

        anchors.left: icon.right
        anchors.leftMargin: 8
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: button.text
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    Loader {
        id: opener

        active: false
        sourceComponent: MonthPanel {
            parent: button
            grid: month
            name: button.controlName
            onClosed: {
                opener.active = false
                // Whoever went on with the keyboard is to see where it is.
                button.forceActiveFocus(byKeyboard ? Qt.TabFocusReason : Qt.PopupFocusReason)
            }
            Component.onCompleted: open()
        }
    }
}
