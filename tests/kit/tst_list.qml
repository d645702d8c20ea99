import QtQuick
import QtTest
import Ormiva.Bench
import Ormiva.Kit

Item {
    id: root

    property int made: 0

    width: 600
    height: 400

    OMList {
        id: list

        width: 500
        height: 400
        padding: 20
        spacing: 10
        name: "A long list"
        model: 500
        header: OMText { text: "Above" }
        footer: OMText { text: "Below" }
        delegate: Rectangle {
            id: row

            required property int index
            property alias button: button

            width: list.contentWidth
            height: 90

            VLChromeButton {
                id: button

                text: "Row " + row.index
            }
            Component.onCompleted: ++root.made
        }
    }

    TestCase {
        name: "List"
        when: windowShown

        function init() {
            Bench.reset()
            list.motor.key(Qt.Key_Home)
        }

        function rows() { return Bench.texts(list, "VLChromeButton") }
        function place(title) { return Bench.place(Bench.named(list, "VLChromeButton", title)) }

        function above() { return Bench.place(Bench.named(list, "OMText", "Above")) }

        function test_makesOnlyTheRowsThatAreSeen() {
            verify(root.made >= 4 && root.made < 30, root.made)
            compare(list.count, 500)
            compare(list.implicitHeight, 0)
        }

        function test_rowsLieBetweenTheMargins() {
            compare(list.contentWidth, 460)
            compare([above().x, above().y], [20, 20])
            compare(place("Row 0").x, 20)
            compare(place("Row 1").y - place("Row 0").y, 100)
            list.width = 1600
            compare(list.contentWidth, 1280)
            compare(place("Row 0").x, 160)
            list.width = 500
        }

        function test_scrollsByKeysToItsEnds() {
            list.forceActiveFocus()
            const top = list.contentY
            keyClick(Qt.Key_Down)
            compare(list.contentY, top + 48)
            keyClick(Qt.Key_PageDown)
            compare(list.contentY, top + 48 + 352)
            keyClick(Qt.Key_End)
            tryVerify(() => Bench.named(list, "OMText", "Below") !== null)
            keyClick(Qt.Key_End)
            const below = Bench.place(Bench.named(list, "OMText", "Below"))
            compare(below.y + below.height, 400 - 20)
            keyClick(Qt.Key_Left)
            keyClick(Qt.Key_Right)
            compare(place("Row 499").x, 20)
            keyClick(Qt.Key_Home)
            compare(list.contentY, top)
            compare(above().y, 20)
        }

        function test_scrollsByTheWheel() {
            const top = list.contentY
            mouseWheel(list, 5, 100, 0, -240) // beside the rows
            compare(list.contentY, top + 144)
            mouseWheel(list, 100, 100, 0, 24000)
            compare(list.contentY, top)
        }

        function test_tabGoesDownTheRowsAndBringsThemIntoSight() {
            Bench.named(list, "VLChromeButton", "Row 0").forceActiveFocus(Qt.TabFocusReason)
            for (let row = 1; row < 20; ++row) {
                tryVerify(() => Bench.named(list, "VLChromeButton", "Row " + row) !== null)
                keyClick(Qt.Key_Tab)
                const focused = Bench.focusItem(list)
                compare(focused.text, "Row " + row)
                const at = Bench.place(focused)
                verify(at.y >= 0 && at.y + at.height <= 400, at)
            }
        }

        function test_saysWhatItIs() {
            compare(Bench.accessibleName(list), "A long list")
        }

        function test_barStandsAtTheEdgeOfTheArea() {
            const bar = Bench.all(list, "OMScrollBar")[0]
            compare(Bench.place(bar).x + bar.width, 500)
            compare(bar.height, 400)
        }
    }
}
