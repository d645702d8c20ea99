import QtQuick
import QtTest
import Ormiva.Bench
import Ormiva.Gallery
import Ormiva.Kit

// Every control of the kit is met by Tab, once and in reading order, and says what it is.
Item {
    id: root

    width: 1100
    height: 800

    Gallery {
        id: gallery

        anchors.fill: parent
    }

    TestCase {
        name: "Gallery"
        when: windowShown

        function init() {
            Bench.reset()
            root.Window.window.requestActivate()
            tryVerify(() => root.Window.window.active)
        }

        function focused() { return Bench.focusItem(root) }

        // What Tab leads to from the top of the page until it is there again.
        function walk(key) {
            gallery.forceActiveFocus(Qt.TabFocusReason)
            const items = []
            const names = []
            for (let i = 0; i < 200; ++i) {
                const item = focused()
                if (items.includes(item))
                    break
                items.push(item)
                // Pickers say what is chosen behind their name.
                names.push(Bench.accessibleName(item).split(": ")[0])
                keyClick(key === "Backtab" ? Qt.Key_Backtab : Qt.Key_Tab)
            }
            compare(focused(), gallery)
            return {items: items, names: names}
        }

        readonly property var controls: [
            "The gallery",
            "Plain", "With a symbol", "Prominent", "Compact", "Compact, prominent", "Destructive", "Add", "Add, compact", "A link",
            "Search field", "Search field with text", "Clear search", "Text field", "Text field with text", "Text area",
            "Text area with text", "Off", "On",
            "Day", "A day that may be left open", "Species", "Species, or none", "Pet",
            "Weight", "Cancel", "Save"]

        function test_tabMeetsEveryControlOnce() {
            const walked = walk("Tab")
            for (let i = 0; i < walked.names.length; ++i)
                verify(walked.names[i] !== "", "stop " + i + " says nothing: " + walked.items[i])
            compare(walked.names, controls)
        }

        function test_backtabGoesTheSameWayBack() {
            const names = walk("Backtab").names
            compare(names.slice(1).reverse(), controls.slice(1))
        }

        function test_tabGoesInReadingOrder() {
            const places = walk("Tab").items.slice(1).map(item => item.mapToItem(gallery, 0, gallery.contentY))
            for (let i = 1; i < places.length; ++i) {
                const above = places[i].y > places[i - 1].y + 30
                const beside = Math.abs(places[i].y - places[i - 1].y) <= 50 && places[i].x >= places[i - 1].x - 20
                verify(above || beside, controls[i] + " before " + controls[i + 1])
            }
        }

        function test_whatHasTheFocusIsInView() {
            gallery.forceActiveFocus(Qt.TabFocusReason)
            for (let i = 1; i < controls.length; ++i) {
                keyClick(Qt.Key_Tab)
                const item = focused()
                tryVerify(() => {
                    const y = item.mapToItem(gallery, 0, 0).y
                    return y >= 0 && y + item.height <= gallery.height
                }, 5000, controls[i])
            }
        }

        function test_everythingDrawnHasAPlaceInTheWidth_data() {
            return [{tag: "100%", zoom: 1}, {tag: "200%", zoom: 2}]
        }
        function test_everythingDrawnHasAPlaceInTheWidth(data) {
            Bench.storeZoom(data.zoom)
            for (const type of ["VLChromeButton", "OMTextField", "OMTextArea", "VLSearchField", "OMTag", "VLAnodizedPill", "OMCard"])
                for (const item of Bench.all(gallery, type)) {
                    const place = item.mapToItem(gallery, 0, 0)
                    verify(place.x >= 0 && place.x + item.width <= gallery.width, type + " " + (item.text || item.title || ""))
                    verify(item.width > 0 && item.height > 0)
                }
        }
    }
}
