import QtQuick
import Ormiva.Kit
import Ormiva.Screens

// A filter chip, filled while it is the one that is chosen.
OMButton {
    id: chip

    property bool selected: false

    implicitHeight: 27
    horizontalPadding: 11
    Accessible.role: Accessible.RadioButton
    Accessible.checkable: true
    Accessible.checked: selected

    contentItem: OMText {
        text: chip.text
        size: 11.5
        font.weight: chip.selected ? Font.Bold : Font.Medium
        color: chip.selected ? VLUI.inkOn(VLUI.accent) : VLUI.text
        verticalAlignment: Text.AlignVCenter
    }

    background: Plate {
        radius: height / 2
        fill: chip.selected ? VLUI.accent : VLUI.at("white", chip.down ? 0.18 : chip.hovered ? 0.1 : 0)
        rimWidth: chip.selected ? 0 : 1
        rim: VLUI.at("white", 0.28)

        FocusRing {
            shown: chip.visualFocus
            corner: parent.radius
            reach: 0
        }
    }
}
