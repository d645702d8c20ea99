import QtQuick
import QtQuick.Templates as T
import Ormiva.Kit

// An item of a menu: a check mark when checked, its title, the keys that do the same.
T.MenuItem {
    id: item

    // Shown only; an item without an action needs a Shortcut beside it.
    property string keys: action && action.shortcut ? action.shortcut : ""

    // Does what a click does.
    function activate() {
        if (action)
            action.trigger()
        triggered()
    }

    implicitWidth: leftPadding + implicitContentWidth + rightPadding
    implicitHeight: 27
    leftPadding: 28
    rightPadding: 14
    hoverEnabled: true
    Accessible.name: text
    Accessible.description: keys

    contentItem: MenuItemLabel {
        title: item.text
        keys: item.keys
        highlighted: item.highlighted
        enabled: item.enabled
    }

    indicator: Symbol {
        x: 8
        y: (item.height - height) / 2
        visible: item.checked
        name: "checkmark"
        size: 14
        color: item.highlighted ? VLUI.inkOn(VLUI.accent) : VLUI.text
    }

    arrow: Symbol {
        x: item.width - width - 8
        y: (item.height - height) / 2
        visible: item.subMenu
        name: "chevron.right"
        size: 15
        color: item.highlighted ? VLUI.inkOn(VLUI.accent) : VLUI.dim
    }

    background: Plate {
        radius: 6
        fill: item.highlighted ? VLUI.accent : "transparent"
    }
}
