import QtQuick
import Ormiva.Kit

// The month in which a day is chosen.
DropDown {
    id: panel

    required property MonthGrid grid
    property string name
    property bool byKeyboard: false

    implicitWidth: 7 * days.cellWidth + leftPadding + rightPadding
    implicitHeight: column.implicitHeight + topPadding + bottomPadding
    padding: 10
    onAboutToShow: grid.open()

    function choose() {
        grid.choose()
        close()
    }

    FocusScope {
        anchors.fill: parent
        focus: true
        Accessible.role: Accessible.Pane
        Accessible.name: panel.name === "" ? panel.grid.title : panel.name + ": " + panel.grid.title

        Keys.onPressed: event => {
            const months = event.modifiers & Qt.ShiftModifier ? 12 : 1
            event.accepted = true
            panel.byKeyboard = true
            switch (event.key) {
            case Qt.Key_PageUp:
                panel.grid.moveMonths(-months)
                break
            case Qt.Key_PageDown:
                panel.grid.moveMonths(months)
                break
            case Qt.Key_T:
                panel.grid.moveToToday()
                break
            case Qt.Key_Escape:
                panel.close()
                break
            default:
                event.accepted = false
            }
        }

        Column {
            id: column

            width: parent.width
            spacing: 4

            MonthHeading {
                width: parent.width
                grid: panel.grid
            }
            MonthDays {
                id: days

                width: parent.width
                grid: panel.grid
                byKeyboard: panel.byKeyboard
                focus: true
                onChosen: panel.choose()
                onKeyed: panel.byKeyboard = true
            }
            VLChromeButton {
                anchors.horizontalCenter: parent.horizontalCenter
                text: qsTr("Today")
                compact: true
                onClicked: panel.grid.moveToToday()
            }
        }
    }
}
