import QtQuick
import Ormiva.Kit

// The days of the month on show, a week to a row. The arrow keys move its cursor.
FocusScope {
    id: days

    required property MonthGrid grid
    property bool byKeyboard: false

    readonly property real cellWidth: 36
    readonly property real cellHeight: 26

    // The day of the cursor was chosen.
    signal chosen()
    // A key was pressed.
    signal keyed()

    implicitHeight: names.height + 6 * cellHeight
    activeFocusOnTab: true

    Keys.onPressed: event => {
        event.accepted = true
        days.keyed()
        switch (event.key) {
        case Qt.Key_Left:
            grid.moveDays(-1)
            break
        case Qt.Key_Right:
            grid.moveDays(1)
            break
        case Qt.Key_Up:
            grid.moveDays(-7)
            break
        case Qt.Key_Down:
            grid.moveDays(7)
            break
        case Qt.Key_Home:
            grid.moveToWeekStart()
            break
        case Qt.Key_End:
            grid.moveToWeekEnd()
            break
        case Qt.Key_Return:
        case Qt.Key_Enter:
        case Qt.Key_Space:
            chosen()
            break
        default:
            event.accepted = false
        }
    }

    Row {
        id: names

        height: 20

        Repeater {
            model: days.grid.weekdays

            OMText {
                required property string modelData

                width: days.cellWidth
                height: 20
                text: modelData
                size: 10.5
                color: VLUI.dim
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                elide: Text.ElideRight
            }
        }
    }
    Grid {
        anchors.top: names.bottom
        columns: 7

        Repeater {
            model: days.grid.cells

            MonthDay {
                required property monthCell modelData

                width: days.cellWidth
                height: days.cellHeight
                cell: modelData
                chosen: modelData.day.iso === days.grid.day.iso
                focus: shown && modelData.day.iso === days.grid.cursor.iso
                ringed: activeFocus && days.byKeyboard
                onPressed: {
                    days.grid.cursor = modelData.day
                    days.chosen()
                }
            }
        }
    }
}
