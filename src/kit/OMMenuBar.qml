import QtQml
import QtQuick
import QtQuick.Templates as T
import Ormiva.Kit

// The menu bar of a window. It doesn't zoom. F10 enters it, Alt and a letter open a menu, arrows go on from
// there, and Escape leads back to where the keyboard was before.
T.MenuBar {
    id: bar

    // What had the focus before the bar was entered by key.
    property Item before: null

    function enter() {
        remember()
        itemAt(0).forceActiveFocus(Qt.TabFocusReason)
    }

    function remember() {
        if (before)
            return
        const focused = Window.window ? Window.window.activeFocusItem : null
        for (let i = 0; i < count; ++i)
            if (itemAt(i) === focused)
                return
        before = focused
    }

    function leave() {
        focus = false
        if (before)
            before.forceActiveFocus(Qt.OtherFocusReason)
        before = null
    }

    // After a menu: back to where the keyboard was, unless the next menu is open or a dialogue took the focus.
    function leaveWhenClosed() {
        const focused = Window.window ? Window.window.activeFocusItem : null
        for (let i = 0; i < count; ++i)
            if (itemAt(i).menu.visible)
                return
        for (let i = 0; i < count; ++i)
            if (!focused || focused === Window.contentItem || itemAt(i) === focused)
                return leave()
        before = null
    }

    // Opens the menu of an item with its first entry marked.
    function openAt(index: int) {
        const item = itemAt((index + count) % count) as OMMenuBarItem
        remember()
        item.forceActiveFocus(Qt.TabFocusReason)
        if (!item.menu.opened)
            item.triggered()
        item.menu.currentIndex = 0
    }

    function indexOf(menu: T.Menu): int {
        for (let i = 0; i < count; ++i)
            if (itemAt(i).menu === menu)
                return i
        return -1
    }

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: 30
    leftPadding: 8

    delegate: OMMenuBarItem {}

    contentItem: Row {
        spacing: 2

        Repeater {
            model: bar.contentModel
        }
    }

    background: Rectangle {
        color: VLUI.mix(VLUI.panelBottom, "black", 0.25)

        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: VLUI.at("white", 0.1)
        }
    }

    Shortcut {
        sequence: "F10"
        onActivated: bar.enter()
    }
    Instantiator {
        model: bar.menus
        delegate: Shortcut {
            required property OMMenu modelData

            sequence: "Alt+" + modelData.mnemonic
            onActivated: bar.openAt(bar.indexOf(modelData))
        }
    }
}
