import QtQuick
import QtTest
import Ormiva.Bench
import Ormiva.Kit

Item {
    id: root

    width: 600
    height: 500

    OMField {
        id: named

        x: 20
        y: 10
        width: 260
        label: "Markings"
        help: "Colors or a number."

        OMTextField {
            id: line

            width: parent.width
            placeholder: "e.g. striped"
        }
    }
    OMField {
        x: 20
        y: 110
        width: 260
        label: "Weight"

        Row {
            OMTextField {
                id: inRow

                width: 120
                placeholder: "0"
            }
            OMTextField {
                id: second

                width: 100
                controlName: "A name of its own"
            }
        }
    }
    OMField {
        id: areaField

        x: 20
        y: 190
        width: 260
        label: "Notes"

        OMTextArea {
            id: area

            width: parent.width
            placeholder: "What else there is"
        }
    }
    OMToggle {
        id: toggle

        x: 20
        y: 320
        title: "It was eaten"
    }
    OMAddButton {
        id: add

        x: 320
        y: 10
        title: "Add"
    }
    OMAddButton {
        id: small

        x: 320
        y: 60
        title: "Add"
        compact: true
    }
    VLAnodizedPill {
        id: pill

        x: 320
        y: 110
        text: "A pill"
        color: VLUI.leaf
    }

    SignalSpy {
        id: toggled

        target: toggle
        signalName: "toggled"
    }
    SignalSpy {
        id: presses

        target: add
        signalName: "clicked"
    }

    TestCase {
        name: "Fields"
        when: windowShown

        function init() {
            Bench.reset()
            for (const control of [line, area, toggle])
                control.enabled = true
            line.text = ""
            area.text = ""
            toggle.checked = false
            toggle.title = "It was eaten"
            toggle.width = undefined
            named.label = "Markings"
            add.forceActiveFocus(Qt.MouseFocusReason)
            toggled.clear()
            presses.clear()
        }

        function rings(item) {
            return Bench.all(item, "FocusRing").length
        }

        function test_labelNamesTheControl() {
            compare(Bench.accessibleName(line), "Markings")
            compare(line.Accessible.description, "Colors or a number.")
            compare(Bench.accessibleRole(line), Accessible.EditableText)
            compare(Bench.accessibleName(area.area), "Notes")
            compare(area.area.Accessible.description, "What else there is")
            verify(area.area.Accessible.multiLine)
            named.label = "Band"
            compare(Bench.accessibleName(line), "Band")
        }

        function test_labelNamesTheFirstControlOfARow() {
            compare(Bench.accessibleName(inRow), "Weight")
            compare(Bench.accessibleName(second), "A name of its own")
        }

        function test_labelLeadsToTheControl() {
            mouseClick(Bench.named(areaField, "OMText", "Notes"))
            verify(area.area.activeFocus)
        }

        function test_fieldShowsLabelControlAndHelpInTheirSizes() {
            compare(Bench.texts(named, "OMText"), ["Markings", "e.g. striped", "Colors or a number."])
            compare(Bench.named(named, "OMText", "Markings").size, 11)
            compare(Bench.named(named, "OMText", "Colors or a number.").size, 10.5)
            verify(Bench.place(Bench.named(named, "OMText", "Markings")).bottom <= Bench.place(line).top)
            verify(Bench.place(line).bottom <= Bench.place(Bench.named(named, "OMText", "Colors or a number.")).top)
        }

        function test_placeholderShowsWhileThereIsNoText() {
            verify(Bench.named(line, "OMText", "e.g. striped"))
            mouseClick(line)
            keyClick("a")
            compare(line.text, "a")
            compare(Bench.named(line, "OMText", "e.g. striped"), null)
            verify(Bench.named(area, "OMText", "What else there is"))
            area.text = "x"
            compare(Bench.named(area, "OMText", "What else there is"), null)
        }

        function test_textFieldHasTheSizesOfTheKit() {
            compare(line.font.pointSize, 13 * VLUI.pointsPerPixel)
            compare(line.padding, 7)
            compare(Bench.all(line, "Plate")[0].radius, 10)
            compare(Bench.all(line, "Plate")[0].rimWidth, 0.5)
            compare(area.height, 70)
            compare(Bench.all(area, "Plate")[0].radius, 10)
        }

        function test_disabledControlsAreFadedAndDoNothing() {
            for (const control of [line, area, toggle]) {
                compare(control.opacity, 1)
                control.enabled = false
                compare(control.opacity, 0.4)
                mouseClick(control)
            }
            keyClick("a")
            compare([line.text, area.text, toggle.checked], ["", "", false])
        }

        function test_areaTakesReturnAndTabLeavesIt() {
            mouseClick(area)
            keyClick("a")
            keyClick(Qt.Key_Return)
            keyClick("b")
            compare(area.text, "a\nb")
            keyClick(Qt.Key_Tab)
            verify(!area.area.activeFocus)
            verify(toggle.visualFocus)
            keyClick(Qt.Key_Backtab, Qt.ShiftModifier)
            verify(area.area.activeFocus)
            keyClick(Qt.Key_Backtab, Qt.ShiftModifier)
            verify(second.activeFocus)
            compare(area.text, "a\nb")
        }

        function test_areaScrollsInside() {
            area.text = "A line.\n".repeat(20)
            area.contentY = 0
            mouseWheel(area, 50, 30, 0, -120)
            compare(area.contentY, 72)
            mouseWheel(area, 50, 30, 0, 1200)
            compare(area.contentY, 0)
            mouseClick(area)
            keyClick(Qt.Key_End, Qt.ControlModifier)
            verify(area.contentY > 200)
            compare(area.height, 70)
        }

        function test_areaIsSelectedByTheMouse() {
            area.text = "A line of text"
            mousePress(area, 12, 14)
            mouseMove(area, 60, 14)
            mouseMove(area, 240, 60)
            mouseRelease(area, 240, 60)
            verify(area.area.selectedText.length > 5, area.area.selectedText)
            verify(area.area.selectedText.endsWith("text"))
        }

        function test_toggleIsTurnedByMouseAndSpace() {
            mouseClick(toggle)
            compare(toggle.checked, true)
            compare(rings(toggle), 0)
            toggle.forceActiveFocus(Qt.TabFocusReason)
            compare(rings(toggle), 1)
            keyClick(Qt.Key_Space)
            compare(toggle.checked, false)
            compare(toggled.count, 2)
            compare(Bench.accessibleRole(toggle), Accessible.CheckBox)
            compare(Bench.accessibleName(toggle), "It was eaten")
        }

        function test_toggleElidesALongTitle() {
            toggle.title = "A title that is far longer than the room that there is for it"
            toggle.width = 150
            const label = Bench.named(toggle, "OMText", toggle.title)
            verify(label.truncated)
            verify(Bench.place(label).right <= Bench.place(toggle).right)
        }

        function test_addButtonIsProminentWithAPlus() {
            verify(add.prominent)
            compare(add.symbol, "plus")
            compare(Bench.accessibleName(add), "Add")
            mouseClick(add)
            compare(presses.count, 1)
            verify(small.height < add.height)
        }

        function test_pillFitsItsText() {
            const label = Bench.named(pill, "OMText", "A pill")
            compare(label.size, 10)
            fuzzyCompare(pill.width, label.implicitWidth + 18, 1)
            fuzzyCompare(pill.height, label.implicitHeight + 6, 1)
            compare(pill.upper, VLUI.at(VLUI.leaf, 0.95))
            compare(pill.lower, VLUI.at(VLUI.leaf, 0.6))
            verify(!label.truncated)
        }
    }
}
