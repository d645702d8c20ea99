import QtQuick
import QtTest
import Ormiva.Bench
import Ormiva.Kit

Item {
    id: root

    width: 700
    height: 500

    Item {
        id: zoomed

        width: root.width / VLUI.zoom
        height: root.height / VLUI.zoom
        scale: VLUI.zoom
        transformOrigin: Item.TopLeft

        Item {
            id: corner

            anchors.right: parent.right
            anchors.bottom: parent.bottom
            width: 60
            height: 20
        }
    }

    OMMenu {
        id: menu

        parent: corner
        y: corner.height

        OMMenuItem { text: "One" }
        OMMenuItem { text: "Two, which is a good deal longer than the first of them" }
        OMMenuItem { text: "Three" }
    }

    OMToolTip {
        id: tip

        parent: corner
        delay: 0
        text: "A tip with quite some words in it, so that it has to wrap at the width that tips may have at most."
    }

    OMAlert {
        id: alert

        title: "A title"
        message: ("A line of a message that is long enough to wrap somewhere. ".repeat(6) + "\n").repeat(12)
        cancelTitle: "Cancel"
    }

    SignalSpy {
        id: accepted

        target: alert
        signalName: "accepted"
    }
    SignalSpy {
        id: rejected

        target: alert
        signalName: "rejected"
    }

    TestCase {
        name: "Popups"
        when: windowShown

        function init() {
            Bench.reset()
            accepted.clear()
            rejected.clear()
            alert.destructive = false
        }

        function cleanup() {
            for (const popup of [menu, tip, alert]) {
                popup.close()
                tryCompare(popup, "visible", false)
            }
        }

        function zooms() {
            return [{tag: "85%", zoom: 0.85}, {tag: "100%", zoom: 1}, {tag: "200%", zoom: 2}]
        }

        function verifyInside(popup, zoom) {
            const place = Bench.place(popup.background)
            verify(place.x >= 0 && place.y >= 0, place)
            verify(place.x + place.width <= root.width && place.y + place.height <= root.height, place)
            fuzzyCompare(place.width, popup.width * zoom, 0.5)
            verify(popup.width > 100)
        }

        function test_menuStaysInsideTheWindow_data() { return zooms() }
        function test_menuStaysInsideTheWindow(data) {
            Bench.storeZoom(data.zoom)
            menu.open()
            tryCompare(menu, "opened", true)
            verifyInside(menu, data.zoom)
        }

        function test_tipStaysInsideTheWindow_data() { return zooms() }
        function test_tipStaysInsideTheWindow(data) {
            Bench.storeZoom(data.zoom)
            tip.open()
            tryCompare(tip, "opened", true)
            verifyInside(tip, data.zoom)
        }

        function test_alertStaysInsideTheWindow_data() { return zooms() }
        function test_alertStaysInsideTheWindow(data) {
            Bench.storeZoom(data.zoom)
            alert.open()
            tryCompare(alert, "opened", true)
            verifyInside(alert, data.zoom)
            const place = Bench.place(alert.background)
            fuzzyCompare(place.x, root.width - place.x - place.width, 1.5)
        }

        function test_alertIsAnsweredByKeys_data() {
            return [
                {tag: "Return", key: Qt.Key_Return, accepted: 1, rejected: 0},
                {tag: "Escape", key: Qt.Key_Escape, accepted: 0, rejected: 1},
                {tag: "Return on what destroys", key: Qt.Key_Return, destructive: true, accepted: 0, rejected: 1}
            ]
        }
        function test_alertIsAnsweredByKeys(data) {
            alert.destructive = data.destructive === true
            alert.open()
            tryCompare(alert, "opened", true)
            keyClick(data.key)
            compare([accepted.count, rejected.count], [data.accepted, data.rejected])
        }

        function test_alertHoldsTheFocus() {
            alert.open()
            tryCompare(alert, "opened", true)
            for (let i = 0; i < 6; ++i) {
                keyClick(Qt.Key_Tab)
                let item = Bench.focusItem(root)
                while (item && item !== alert.contentItem)
                    item = item.parent
                verify(item === alert.contentItem)
            }
        }
    }
}
