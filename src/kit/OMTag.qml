import QtQuick
import Ormiva.Kit

// A small capsule with a word or two.
Plate {
    id: tag

    property alias text: label.text
    property color tint: VLUI.accent
    property bool compact: false

    implicitWidth: label.implicitWidth + 2 * (compact ? 6 : 8)
    implicitHeight: label.implicitHeight + 2 * (compact ? 2 : 3)
    radius: height / 2
    fill: VLUI.at(tint, 0.3)
    rimWidth: 0.5
    rim: VLUI.at(tint, 0.7)

    OMText {
        id: label

        anchors.centerIn: parent
        size: 10.5
        font.weight: Font.Medium
    }
}
