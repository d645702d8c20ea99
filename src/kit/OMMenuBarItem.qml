import QtQuick
import QtQuick.Templates as T
import Ormiva.Kit

// The title of a menu in the menu bar.
T.MenuBarItem {
    id: item

    readonly property var bar: menuBar

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: 26
    y: 2
    horizontalPadding: 10
    hoverEnabled: true
    Accessible.role: Accessible.MenuItem
    Accessible.name: text

    Binding {
        target: item.menu
        property: "bar"
        value: item.bar
    }

    Keys.onPressed: event => {
        const index = bar.indexOf(menu)
        switch (event.key) {
        case Qt.Key_Left:
        case Qt.Key_Right:
            const step = event.key === Qt.Key_Right ? 1 : -1
            bar.itemAt((index + step + bar.count) % bar.count).forceActiveFocus(Qt.TabFocusReason)
            break
        case Qt.Key_Down:
        case Qt.Key_Return:
        case Qt.Key_Enter:
        case Qt.Key_Space:
            bar.openAt(index)
            break
        case Qt.Key_Escape:
            bar.leave()
            break
        default:
            return
        }
        event.accepted = true
    }

    contentItem: OMText {
        text: item.text
        size: 12.5
        verticalAlignment: Text.AlignVCenter
    }

    background: Plate {
        radius: 6
        fill: VLUI.at("white", (item.menu && item.menu.opened) || item.down ? 0.2 : item.hovered ? 0.1 : 0)

        FocusRing {
            shown: item.visualFocus
            corner: 6
            reach: 0
        }
    }
}
