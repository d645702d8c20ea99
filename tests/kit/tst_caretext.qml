import QtQuick
import QtTest
import Ormiva.Bench
import Ormiva.Kit

Item {
    id: root

    width: 400
    height: 400

    CareText {
        id: care

        width: 300
        careText: "First line\n\n  • Twelve hours \n•Off\nLast • line"
    }

    TestCase {
        name: "CareText"
        when: windowShown

        function init() {
            Bench.reset()
        }

        function test_linesBecomeBlocksAndBulletsRows() {
            compare(Bench.lines(care), ["First line", "", "• Twelve hours", "• Off", "Last • line"])
        }

        function test_takesANewText() {
            const before = care.careText
            care.careText = "• One"
            compare(Bench.lines(care), ["• One"])
            care.careText = before
            compare(Bench.lines(care).length, 5)
        }

        function test_linesStandFourPointsApart() {
            care.careText = "A"
            const one = care.implicitHeight
            care.careText = "A\nA"
            fuzzyCompare(care.implicitHeight, 2 * one + 4, 1.5)
            care.careText = "First line\n\n  • Twelve hours \n•Off\nLast • line"
        }

        function test_isSelectedAndCopied() {
            care.forceActiveFocus()
            care.selectAll()
            keyClick(Qt.Key_C, Qt.ControlModifier)
            const copied = Bench.clipboard()
            for (const part of ["First line", "Twelve hours", "Off", "Last • line"])
                verify(copied.includes(part), part)
        }

        function test_cannotBeEdited() {
            care.forceActiveFocus()
            keyClick(Qt.Key_X)
            keyClick(Qt.Key_Delete)
            compare(Bench.lines(care)[0], "First line")
        }

        function test_isNoTabStop() {
            compare(care.activeFocusOnTab, false)
        }

        function test_followsTheTheme() {
            Bench.storeTheme("rose-gold")
            compare(care.color, VLUI.text)
            compare(VLUI.text, Qt.rgba(1, 0xF2 / 255, 0xF5 / 255, 1))
        }
    }
}
