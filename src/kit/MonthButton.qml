import QtQuick
import Ormiva.Kit

// A button that turns to another month.
OMButton {
    id: button

    property string symbol

    implicitWidth: 26
    implicitHeight: 26
    contentItem: Symbol {
        name: button.symbol
        size: 18
        color: button.hovered || button.visualFocus ? VLUI.text : VLUI.dim
    }
    background: Plate {
        radius: 8
        fill: VLUI.at("white", button.down ? 0.2 : button.hovered ? 0.1 : 0)

        FocusRing {
            shown: button.visualFocus
            corner: 8
            reach: -1
        }
    }

    OMTipped {
        text: button.text
        shown: button.hovered || button.visualFocus
    }
}
