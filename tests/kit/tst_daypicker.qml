import QtQuick
import QtTest
import Ormiva.Bench
import Ormiva.Kit

Item {
    id: root

    width: 960
    height: 640

    Item {
        id: zoomed

        width: root.width / VLUI.zoom
        height: root.height / VLUI.zoom
        scale: VLUI.zoom
        transformOrigin: Item.TopLeft

        OMDayPicker {
            id: picker

            x: 20
            y: 20
            controlName: "Starting"
        }
        OMField {
            x: 20
            y: 60
            width: 260
            label: "Birthday"

            OMOptionalDayPicker {
                id: optional

                width: parent.width
                label: "Known"
            }
        }
        OMDayPicker {
            id: middle

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
        }
    }

    SignalSpy {
        id: changes

        target: picker
        signalName: "dayChanged"
    }

    TestCase {
        name: "DayPicker"
        when: windowShown

        function init() {
            Bench.reset()
            Bench.fixCalendar("2026-03-17")
            picker.day = Bench.day("2026-03-12")
            picker.enabled = true
            optional.day = undefined
            picker.forceActiveFocus(Qt.TabFocusReason)
            changes.clear()
        }

        function cleanup() {
            for (const control of [picker, middle, optional.control]) {
                if (control.panel)
                    control.panel.close()
                tryVerify(() => control.panel === null)
            }
            Bench.reset()
        }

        function opened(control) {
            tryVerify(() => control.panel !== null && control.panel.opened)
            return control.panel
        }
        function cells(panel) {
            return Bench.all(panel.contentItem, "MonthDay").filter(cell => cell.shown)
        }
        function cell(panel, number) {
            return cells(panel)[number - 1]
        }
        function press(panel, name) {
            mouseClick(Bench.named(panel.contentItem, "MonthButton", name))
        }

        function test_showsItsDayAndSaysIt() {
            compare(Bench.texts(picker, "OMText"), ["Mar 12, 2026"])
            compare(Bench.accessibleName(picker), "Starting: Mar 12, 2026")
            compare(Bench.accessibleRole(picker), Accessible.ButtonDropDown)
            picker.day = Bench.day("2020-02-29")
            compare(picker.text, "Feb 29, 2020")
            verify(!Bench.all(picker, "OMText")[0].truncated)
        }

        function test_leftAndRightStepByADay() {
            keyClick(Qt.Key_Left)
            compare(picker.day.iso, "2026-03-11")
            picker.day = Bench.day("2026-02-28")
            keyClick(Qt.Key_Right)
            compare(picker.day.iso, "2026-03-01")
            compare(picker.panel, null)
        }

        function test_isOpenedByMouseAndKeys_data() {
            return [
                {tag: "mouse", open: () => mouseClick(picker)},
                {tag: "Space", open: () => keyClick(Qt.Key_Space)},
                {tag: "Return", open: () => keyClick(Qt.Key_Return)},
                {tag: "Down", open: () => keyClick(Qt.Key_Down)},
                {tag: "Up", open: () => keyClick(Qt.Key_Up)}
            ]
        }
        function test_isOpenedByMouseAndKeys(data) {
            data.open()
            const panel = opened(picker)
            compare(panel.grid.title, "March 2026")
            compare(Bench.accessibleName(Bench.focusItem(picker)), "Mar 12, 2026")
        }

        function test_showsTheMonth() {
            mouseClick(picker)
            const panel = opened(picker)
            verify(Bench.named(panel.contentItem, "OMText", "March 2026"))
            compare(Bench.texts(panel.contentItem, "OMText").filter(text => /^[SMTWF]..$/.test(text)),
                    ["Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"])
            compare(cells(panel).length, 31)
            // The first of that month was a Sunday.
            fuzzyCompare(Bench.place(cell(panel, 1)).left, Bench.place(Bench.named(panel.contentItem, "OMText", "Sun")).left, 0.5)
            compare(Bench.accessibleName(cell(panel, 5)), "Mar 5, 2026")
            compare(cells(panel).filter(day => day.cell.today).map(day => day.cell.number), ["17"])
            compare(cell(panel, 17).Accessible.description, "Today")
            compare(cells(panel).filter(day => day.chosen).map(day => day.cell.number), ["12"])
            compare(String(Bench.all(cell(panel, 12), "Plate")[0].upper), String(VLUI.accent))
            compare(Bench.all(cell(panel, 17), "Plate")[0].rimWidth, 1)
        }

        function test_weekBeginsAsTheLocaleHasIt() {
            Bench.fixCalendar("2026-03-17", "de_DE")
            mouseClick(picker)
            const panel = opened(picker)
            verify(Bench.named(panel.contentItem, "OMText", "März 2026"))
            verify(Bench.place(Bench.named(panel.contentItem, "OMText", "Mo.")).left
                   < Bench.place(Bench.named(panel.contentItem, "OMText", "So.")).left)
            fuzzyCompare(Bench.place(cell(panel, 1)).left, Bench.place(Bench.named(panel.contentItem, "OMText", "So.")).left, 0.5)
        }

        function test_isChosenFromByTheMouse() {
            mouseClick(picker)
            let panel = opened(picker)
            press(panel, "Previous month")
            compare(panel.grid.title, "February 2026")
            press(panel, "Next year")
            press(panel, "Next month")
            press(panel, "Previous year")
            press(panel, "Next month")
            compare(panel.grid.title, "April 2026")
            compare(changes.count, 0)
            mouseClick(cell(panel, 30))
            tryVerify(() => picker.panel === null)
            compare(picker.day.iso, "2026-04-30")
            compare(changes.count, 1)
            verify(picker.activeFocus)
        }

        function test_todayIsAPressAway() {
            picker.day = Bench.day("2020-02-29")
            mouseClick(picker)
            const panel = opened(picker)
            mouseClick(Bench.named(panel.contentItem, "VLChromeButton", "Today"))
            compare(panel.grid.cursor.iso, "2026-03-17")
            compare(picker.day.iso, "2020-02-29")
        }

        function test_cursorIsMovedByKeys() {
            keyClick(Qt.Key_Down)
            const panel = opened(picker)
            const seen = []
            for (const [key, modifiers] of [
                [Qt.Key_Right], [Qt.Key_Down], [Qt.Key_Left], [Qt.Key_Up], [Qt.Key_Home], [Qt.Key_End],
                [Qt.Key_PageDown], [Qt.Key_PageUp], [Qt.Key_PageUp, Qt.ShiftModifier],
                [Qt.Key_PageDown, Qt.ShiftModifier], [Qt.Key_T]]) {
                keyClick(key, modifiers ?? Qt.NoModifier)
                seen.push(panel.grid.cursor.iso)
                compare(Bench.accessibleName(Bench.focusItem(picker)), panel.grid.cursor.display)
            }
            compare(seen, ["2026-03-13", "2026-03-20", "2026-03-19", "2026-03-12", "2026-03-08", "2026-03-14",
                           "2026-04-14", "2026-03-14", "2025-03-14", "2026-03-14", "2026-03-17"])
            compare(changes.count, 0)
        }

        function test_returnAndSpaceChoose_data() {
            return [{tag: "Return", key: Qt.Key_Return}, {tag: "Space", key: Qt.Key_Space}]
        }
        function test_returnAndSpaceChoose(data) {
            keyClick(Qt.Key_Down)
            opened(picker)
            keyClick(Qt.Key_Right)
            keyClick(data.key)
            tryVerify(() => picker.panel === null)
            compare(picker.day.iso, "2026-03-13")
            verify(picker.visualFocus)
        }

        function test_escapeAndAnotherClickLeaveTheDayAsItWas() {
            keyClick(Qt.Key_Down)
            opened(picker)
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Escape)
            tryVerify(() => picker.panel === null)
            verify(picker.visualFocus)
            mouseClick(picker)
            opened(picker)
            mouseClick(picker)
            tryVerify(() => picker.panel === null)
            compare(picker.day.iso, "2026-03-12")
        }

        function test_buttonsAreReachedByTab() {
            keyClick(Qt.Key_Down)
            const panel = opened(picker)
            const seen = []
            for (let i = 0; i < 5; ++i) {
                keyClick(Qt.Key_Tab)
                seen.push(Bench.accessibleName(Bench.focusItem(picker)))
            }
            compare(seen, ["Today", "Previous year", "Previous month", "Next month", "Next year"])
            keyClick(Qt.Key_Space)
            compare(panel.grid.title, "March 2027")
            keyClick(Qt.Key_Tab)
            compare(Bench.accessibleName(Bench.focusItem(picker)), "Mar 12, 2027")
        }

        function test_ringShowsOnlyForTheKeyboard() {
            compare(Bench.all(picker, "FocusRing").length, 1)
            mouseClick(picker)
            const panel = opened(picker)
            compare(Bench.all(panel.contentItem, "FocusRing").length, 0)
            keyClick(Qt.Key_Right)
            compare(Bench.all(panel.contentItem, "FocusRing").length, 1)
        }

        function test_disabledDoesNothing() {
            picker.enabled = false
            compare(picker.opacity, 0.4)
            mouseClick(picker)
            compare(picker.panel, null)
        }

        function test_panelStaysInsideTheWindow_data() {
            return [{tag: "85%", zoom: 0.85}, {tag: "100%", zoom: 1}, {tag: "200%", zoom: 2}]
        }
        function test_panelStaysInsideTheWindow(data) {
            Bench.storeZoom(data.zoom)
            mouseClick(middle)
            const panel = opened(middle)
            const place = Bench.place(panel.background)
            verify(place.left >= 0 && place.top >= 0, place)
            verify(place.right <= root.width && place.bottom <= root.height, place)
            const today = Bench.place(Bench.named(panel.contentItem, "VLChromeButton", "Today"))
            verify(today.bottom < place.bottom && today.left > place.left, today)
            fuzzyCompare(place.width, (7 * 36 + 20) * data.zoom, 1)
        }

        function test_optionalDayIsTodayWhenTurnedOnAndNoneWhenTurnedOff() {
            compare(optional.day, undefined)
            compare(optional.control.visible, false)
            mouseClick(optional.toggle)
            compare(optional.day.iso, "2026-03-17")
            compare(optional.control.visible, true)
            mouseClick(optional.toggle)
            compare(optional.day, undefined)
        }

        function test_optionalDayIsChosen() {
            optional.day = Bench.day("2020-02-29")
            compare(optional.toggle.checked, true)
            compare(optional.control.text, "Feb 29, 2020")
            optional.control.forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Right)
            compare(optional.day.iso, "2020-03-01")
            keyClick(Qt.Key_Down)
            opened(optional.control)
            keyClick(Qt.Key_T)
            keyClick(Qt.Key_Return)
            compare(optional.day.iso, "2026-03-17")
            optional.day = null
            compare(optional.toggle.checked, false)
            compare(optional.day, undefined)
        }

        function test_optionalDayIsNamedByItsField() {
            compare(Bench.accessibleName(optional.toggle), "Birthday: Known")
            optional.day = Bench.day("2020-02-29")
            compare(Bench.accessibleName(optional.control), "Birthday: Feb 29, 2020")
        }
    }
}
