import QtQuick
import Ormiva.Kit

// The name of the month on show between the buttons that turn to others.
Item {
    id: heading

    required property MonthGrid grid

    implicitHeight: 28

    Row {
        id: back

        anchors.verticalCenter: parent.verticalCenter

        MonthButton {
            text: qsTr("Previous year")
            symbol: "chevron.left.2"
            onClicked: heading.grid.moveMonths(-12)
        }
        MonthButton {
            text: qsTr("Previous month")
            symbol: "chevron.left"
            onClicked: heading.grid.moveMonths(-1)
        }
    }
    OMText {
        anchors.left: back.right
        anchors.right: forth.left
        anchors.verticalCenter: parent.verticalCenter
        text: heading.grid.title
        font.weight: Font.DemiBold
        horizontalAlignment: Text.AlignHCenter
        fontSizeMode: Text.HorizontalFit
        minimumPointSize: 10 * VLUI.pointsPerPixel
        elide: Text.ElideRight
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    Row {
        id: forth

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter

        MonthButton {
            text: qsTr("Next month")
            symbol: "chevron.right"
            onClicked: heading.grid.moveMonths(1)
        }
        MonthButton {
            text: qsTr("Next year")
            symbol: "chevron.right.2"
            onClicked: heading.grid.moveMonths(12)
        }
    }
}
