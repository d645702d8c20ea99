import QtQuick
import QtQuick.Templates as T
import Ormiva.Kit

// The title of a menu in the menu bar.
T.MenuBarItem {
    id: item

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: 26
    y: 2
    horizontalPadding: 10
    hoverEnabled: true
    Accessible.name: text

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
