import QtQuick
import QtTest
import Ormiva.Bench
import Ormiva.Kit

Item {
    id: root

    width: 700
    height: 500

    OMEditorFrame {
        id: frame

        x: 20
        y: 20
        title: "New Pet"
        symbol: "pawprint.fill"
        saveTitle: "Save Pet"

        OMTextField {
            id: line

            width: parent.width
        }
        OMTextArea {
            id: area

            width: parent.width
        }
        OMToggle {
            id: toggle

            title: "On"
        }
        Item {
            width: parent.width
            height: 300
        }
        OMTextField {
            id: last

            width: parent.width
        }
    }

    Component {
        id: sheetWithPickers

        OMDialog {
            property alias editor: editor
            property alias choice: choice
            property alias day: day
            property alias notes: notes

            idealWidth: 600

            OMEditorFrame {
                id: editor

                property int saves: 0
                property int cancels: 0

                width: parent.width
                height: Math.min(implicitHeight, 300)
                title: "In a sheet"
                onSaved: ++saves
                onCancelled: ++cancels

                OMChoice {
                    id: choice

                    choices: TextChoices {
                        ids: ["ant", "bee"]
                        titles: ids
                    }
                }
                OMDayPicker {
                    id: day
                }
                OMTextArea {
                    id: notes

                    width: parent.width
                }
            }
        }
    }

    SignalSpy {
        id: saved

        target: frame
        signalName: "saved"
    }
    SignalSpy {
        id: cancelled

        target: frame
        signalName: "cancelled"
    }

    TestCase {
        name: "EditorFrame"
        when: windowShown

        function init() {
            Bench.reset()
            frame.error = ""
            frame.title = "New Pet"
            frame.height = 400
            frame.contentY = 0
            area.text = ""
            toggle.checked = false
            saved.clear()
            cancelled.clear()
        }

        function button(text) {
            return Bench.named(frame, "VLChromeButton", text)
        }

        function test_isWideEnoughForAForm() {
            compare(frame.width, 560)
        }

        function test_buttonsSaveAndCancel() {
            mouseClick(button("Save Pet"))
            compare([saved.count, cancelled.count], [1, 0])
            mouseClick(button("Cancel"))
            compare([saved.count, cancelled.count], [1, 1])
        }

        function test_returnSavesOnceAndEscapeCancels() {
            for (const control of [line, toggle, last]) {
                saved.clear()
                control.forceActiveFocus(Qt.TabFocusReason)
                keyClick(Qt.Key_Return)
                compare(saved.count, 1)
                keyClick(Qt.Key_Enter)
                compare(saved.count, 2)
            }
            compare(toggle.checked, false)
            for (const control of [line, area.area, toggle]) {
                cancelled.clear()
                control.forceActiveFocus(Qt.TabFocusReason)
                keyClick(Qt.Key_Escape)
                compare(cancelled.count, 1)
            }
        }

        function test_returnIsANewLineInATextArea() {
            area.area.forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Return)
            compare(area.text, "\n")
            compare(saved.count, 0)
            keyClick(Qt.Key_Return, Qt.ControlModifier)
            compare(area.text, "\n")
            compare(saved.count, 1)
        }

        function test_returnOnAButtonPressesThatButton() {
            button("Cancel").forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Return)
            compare([saved.count, cancelled.count], [0, 1])
        }

        function test_errorIsShownAndAnnounced() {
            compare(Bench.all(frame, "Symbol").some(symbol => symbol.name === "exclamationmark.triangle.fill"), false)
            frame.error = "Please give your pet a name."
            const message = Bench.named(frame, "OMText", frame.error)
            verify(message)
            compare(String(message.color), String(VLUI.text)) // alert would be hard to read on some themes
            const sign = Bench.all(frame, "Symbol").find(symbol => symbol.name === "exclamationmark.triangle.fill")
            compare(String(sign.color), String(VLUI.alert))
            compare(Bench.accessibleName(message.parent), frame.error)
            compare(Bench.accessibleRole(message.parent), Accessible.AlertMessage)
        }

        function test_buttonsAndErrorStayInSightWhenTheFormScrolls() {
            frame.error = "A sentence that says at length what was wrong. ".repeat(4)
            frame.height = 280
            const bottom = Bench.place(frame).bottom
            tryVerify(() => Bench.place(button("Save Pet")).bottom === bottom)
            const text = Bench.named(frame, "OMText", frame.error)
            verify(text.lineCount > 1)
            tryVerify(() => Bench.place(text).bottom < Bench.place(button("Save Pet")).top)
            const message = Bench.place(text)
            const scroll = Bench.all(frame, "OMScroll")[0]
            verify(scroll.overflowing)
            verify(Bench.place(scroll).bottom <= message.top)
            verify(Bench.place(scroll).top >= Bench.place(Bench.named(frame, "OMText", "New Pet")).bottom)
            last.forceActiveFocus(Qt.TabFocusReason)
            verify(Bench.place(last).bottom <= Bench.place(scroll).bottom)
            verify(Bench.place(last).top >= Bench.place(scroll).top)
        }

        function test_formFitsAtItsOwnHeight() {
            frame.height = frame.implicitHeight
            tryCompare(Bench.all(frame, "OMScroll")[0], "overflowing", false)
            frame.error = "No."
            frame.height = frame.implicitHeight
            tryCompare(Bench.all(frame, "OMScroll")[0], "overflowing", false)
        }

        function test_pickersOfASheetKeepTheirKeysToThemselves() {
            const sheet = createTemporaryObject(sheetWithPickers, root)
            sheet.open()
            tryCompare(sheet, "opened", true)
            mouseClick(sheet.choice)
            tryVerify(() => sheet.choice.list !== null && sheet.choice.list.opened)
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Escape)
            tryVerify(() => sheet.choice.list === null)
            verify(sheet.choice.visualFocus)
            keyClick(Qt.Key_Down)
            tryVerify(() => sheet.choice.list !== null && sheet.choice.list.opened)
            keyClick(Qt.Key_End)
            keyClick(Qt.Key_Return)
            tryVerify(() => sheet.choice.list === null)
            compare(sheet.choice.choices.chosen, "bee")
            keyClick(Qt.Key_Tab)
            verify(sheet.day.visualFocus)
            keyClick(Qt.Key_Down)
            tryVerify(() => sheet.day.panel !== null && sheet.day.panel.opened)
            keyClick(Qt.Key_Return)
            tryVerify(() => sheet.day.panel === null)
            compare([sheet.editor.saves, sheet.editor.cancels], [0, 0])
            verify(sheet.opened)
            keyClick(Qt.Key_Tab)
            verify(sheet.notes.area.activeFocus)
            keyClick(Qt.Key_Tab)
            compare(Bench.accessibleName(Bench.focusItem(root)), "Cancel")
            keyClick(Qt.Key_Backtab, Qt.ShiftModifier)
            keyClick(Qt.Key_Escape)
            compare([sheet.editor.saves, sheet.editor.cancels], [0, 1])
        }

        function test_longTitleIsElided() {
            frame.title = "Edit " + "Ziggy ".repeat(40)
            const title = Bench.named(frame, "OMText", frame.title)
            verify(title.truncated)
            verify(Bench.place(title).right <= Bench.place(frame).right)
        }
    }
}
