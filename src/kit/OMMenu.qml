import QtQuick
import QtQuick.Templates as T
import Ormiva.Kit

// A menu. It scales like the content when it belongs there, and keeps itself inside the window. While it is
// open a letter goes to the next item that begins with it, and triggers the only one.
T.Menu {
    id: menu

    property bool zoomed: true
    // The menu bar that it belongs to; submenus have none.
    property var bar: null
    // Whether it was ever opened. Long lists of items are made then, so that the window is there sooner.
    property bool wanted: false
    // The letter that opens it from the menu bar, with Alt.
    property string mnemonic: title.charAt(0).toLowerCase()

    readonly property real room: (T.Overlay.overlay ? T.Overlay.overlay.height : 600) / scale - 2 * margins

    implicitWidth: Math.min(460, Math.max(190, widest()) + leftPadding + rightPadding)
    implicitHeight: Math.min(room, contentHeight + topPadding + bottomPadding)
    padding: 5
    margins: 6
    overlap: 1
    cascade: true
    scale: zoomed ? VLUI.zoom : 1
    transformOrigin: T.Popup.TopLeft

    function widest(): real {
        let width = 0
        for (let i = 0; i < count; ++i)
            width = Math.max(width, itemAt(i) ? itemAt(i).implicitWidth : 0)
        return width
    }

    onAboutToShow: wanted = true
    onClosed: if (bar) Qt.callLater(bar.leaveWhenClosed)

    // Without types: qmllint of Qt 6.4 crashes on them now and then.
    function begins(row, letter) {
        const item = itemAt(row) as OMMenuItem
        return item !== null && item.enabled && item.text.toLowerCase().startsWith(letter)
    }

    // Marks the next item that begins with the letter, from the first one again behind the last, and triggers it
    // when it is the only one. False when there is none.
    function typed(text) {
        const letter = text.trim().toLowerCase()
        if (letter === "")
            return false
        let found = 0
        let first = -1
        let next = -1
        for (let row = count - 1; row >= 0; --row) {
            if (!begins(row, letter))
                continue
            ++found
            first = row
            if (row > currentIndex)
                next = row
        }
        if (found === 0)
            return false
        currentIndex = next < 0 ? first : next
        if (found === 1)
            itemAt(currentIndex).activate()
        return true
    }

    contentItem: ListView {
        Keys.onPressed: event => {
            const item = menu.itemAt(menu.currentIndex)
            switch (event.key) {
            case Qt.Key_Left:
            case Qt.Key_Right:
                // Within submenus, and into them, the menus go by themselves.
                if (!menu.bar || (event.key === Qt.Key_Right && item && item.subMenu))
                    return
                menu.bar.openAt(menu.bar.indexOf(menu) + (event.key === Qt.Key_Right ? 1 : -1))
                break
            case Qt.Key_Home:
                menu.currentIndex = 0
                break
            case Qt.Key_End:
                menu.currentIndex = menu.count - 1
                break
            default:
                if (event.modifiers !== Qt.NoModifier || !menu.typed(event.text))
                    return
            }
            event.accepted = true
        }
        implicitHeight: contentHeight
        model: menu.contentModel
        currentIndex: menu.currentIndex
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        T.ScrollBar.vertical: OMScrollBar {}
    }

    background: Item {
        SoftShade {}

        Plate {
            anchors.fill: parent
            radius: 10
            fill: VLUI.mix(VLUI.panelBottom, "black", 0.18)
            rimWidth: 1
            rim: VLUI.rim
        }
    }

    delegate: OMMenuItem {}
}
