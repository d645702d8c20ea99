import QtQuick
import QtTest
import Ormiva.Bench
import Ormiva.Kit

Item {
    id: root

    width: 600
    height: 500

    VLChromeButton {
        id: button

        x: 20
        y: 20
        text: "Press me"
        symbol: "plus"
        tip: "What it does"
    }
    VLSearchField {
        id: search

        x: 20
        y: 80
        prompt: "Search here"
    }
    OMScroll {
        id: scroll

        x: 300
        width: 200
        height: 300
        padding: 0
        name: "A long page"

        Item {
            width: parent.width
            height: 1000

            VLChromeButton {
                id: deep

                y: 900
                text: "Deep down"
            }
        }
    }

    SignalSpy {
        id: presses

        target: button
        signalName: "clicked"
    }
    SignalSpy {
        id: accepted

        target: search
        signalName: "accepted"
    }

    TestCase {
        name: "Controls"
        when: windowShown

        function init() {
            Bench.reset()
            button.enabled = true
            search.text = ""
            scroll.contentY = 0
            presses.clear()
            accepted.clear()
        }

        function test_buttonIsPressedByMouseSpaceAndReturn() {
            mouseClick(button)
            button.forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Space)
            keyClick(Qt.Key_Return)
            keyClick(Qt.Key_Enter)
            compare(presses.count, 4)
        }

        function test_disabledButtonIsFadedAndDoesNothing() {
            button.enabled = false
            mouseClick(button)
            compare(presses.count, 0)
            compare(button.opacity, 0.4)
        }

        function test_buttonIsFadedWhilePressed() {
            mousePress(button)
            compare(button.opacity, 0.75)
            mouseRelease(button)
            compare(button.opacity, 1)
        }

        function test_buttonShowsARingOnlyForTheKeyboard() {
            search.input.forceActiveFocus(Qt.MouseFocusReason)
            compare(Bench.all(button, "FocusRing").length, 0)
            button.forceActiveFocus(Qt.TabFocusReason)
            compare(Bench.all(button, "FocusRing").length, 1)
            search.input.forceActiveFocus(Qt.MouseFocusReason)
            compare(Bench.all(button, "FocusRing").length, 0)
        }

        function test_buttonsSayWhatTheyAre() {
            compare(Bench.accessibleName(button), "Press me")
            compare(button.Accessible.description, "What it does")
            compare(Bench.accessibleName(search.input), "Search here")
            compare(Bench.accessibleName(scroll), "A long page")
        }

        function test_searchIsClearedByItsButton() {
            compare(Bench.named(search, "OMButton", "Clear search"), null)
            mouseClick(search.input)
            keyClick(Qt.Key_A)
            keyClick(Qt.Key_B)
            compare(search.text, "ab")
            mouseClick(Bench.named(search, "OMButton", "Clear search"))
            compare(search.text, "")
            verify(search.input.activeFocus)
            compare(Bench.named(search, "OMButton", "Clear search"), null)
        }

        function test_searchTellsOfReturn() {
            mouseClick(search.input)
            keyClick(Qt.Key_Return)
            compare(accepted.count, 1)
        }

        function test_searchShowsItsPromptWhileEmpty() {
            verify(Bench.named(search, "OMText", "Search here"))
            search.text = "x"
            compare(Bench.named(search, "OMText", "Search here"), null)
        }

        function test_scrollsByKeys() {
            scroll.forceActiveFocus()
            keyClick(Qt.Key_Down)
            compare(scroll.contentY, 48)
            keyClick(Qt.Key_PageDown)
            compare(scroll.contentY, 300)
            keyClick(Qt.Key_End)
            compare(scroll.contentY, 700)
            keyClick(Qt.Key_PageUp)
            compare(scroll.contentY, 448)
            keyClick(Qt.Key_Up)
            compare(scroll.contentY, 400)
            keyClick(Qt.Key_Home)
            compare(scroll.contentY, 0)
        }

        function test_scrollsByTheWheelToItsEnds() {
            mouseWheel(scroll, 100, 100, 0, -240)
            compare(scroll.contentY, 144)
            mouseWheel(scroll, 100, 100, 0, -24000)
            compare(scroll.contentY, 700)
        }

        function test_bringsWhatTakesTheFocusIntoSight() {
            deep.forceActiveFocus(Qt.TabFocusReason)
            compare(scroll.contentY, 900 + deep.height + 14 - 300)
        }
    }
}
