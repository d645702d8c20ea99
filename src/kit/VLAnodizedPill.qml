import QtQuick
import Ormiva.Kit

// A small capsule of coloured metal with a word or two.
Plate {
    id: pill

    property alias text: label.text
    property color color: VLUI.accent

    implicitWidth: Math.ceil(label.implicitWidth) + 2 * 9
    implicitHeight: Math.ceil(label.implicitHeight) + 2 * 3
    radius: height / 2
    upper: VLUI.at(color, 0.95)
    lower: VLUI.at(color, 0.6)
    rimWidth: 0.5
    rim: VLUI.at("white", 0.3)

    OMText {
        id: label

        anchors.centerIn: parent
        width: Math.min(implicitWidth, pill.width - 2 * 9)
        size: 10
        font.weight: Font.DemiBold
        elide: Text.ElideRight
        // The ground is the colour over a panel, about in the middle of its slope.
        color: VLUI.inkOn(VLUI.mix(VLUI.panelBottom, pill.color, 0.78))
    }
}
