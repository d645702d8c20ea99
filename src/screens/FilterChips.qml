import QtQuick
import Ormiva.Kit
import Ormiva.Screens

// The filter chips of the library in one row, which scrolls sideways without a scroll bar.
Flickable {
    id: chips

    required property var filters
    required property string group

    signal chosen(string group)

    implicitHeight: row.implicitHeight
    contentWidth: row.implicitWidth + 32
    contentHeight: height
    flickableDirection: Flickable.HorizontalFlick
    boundsBehavior: Flickable.StopAtBounds
    clip: true

    ScrollMotor {
        id: motor

        target: chips
    }

    WheelHandler {
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        orientation: Qt.Vertical
        onWheel: event => event.accepted = motor.wheel(Qt.point(event.angleDelta.y, 0), Qt.NoModifier)
    }

    Row {
        id: row

        x: 16
        spacing: 6

        Repeater {
            model: chips.filters

            FilterChip {
                required property libraryFilter modelData

                text: modelData.title
                selected: modelData.group === chips.group
                onClicked: chips.chosen(modelData.group)
            }
        }
    }
}
