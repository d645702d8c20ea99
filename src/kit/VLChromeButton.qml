import QtQuick
import Ormiva.Kit

// A metal-look button, with a symbol before its title when one is given.
OMButton {
    id: button

    property alias title: button.text
    property string symbol
    property bool prominent: false
    property bool compact: false
    property string tip
    // The colour of a prominent button.
    property color tint: VLUI.accent

    readonly property color ink: prominent ? VLUI.inkOn(tint) : VLUI.text

    horizontalPadding: compact ? 12 : 16
    verticalPadding: compact ? 5 : 8
    opacity: !enabled ? 0.4 : down ? 0.75 : 1
    Accessible.description: tip

    contentItem: ButtonLabel {
        symbol: button.symbol
        text: button.text
        size: button.compact ? 11 : 12.5
        color: button.ink
    }

    background: Plate {
        radius: height / 2
        rimWidth: 1
        rim: VLUI.at("white", button.hovered ? 0.42 : 0.22)
        upper: VLUI.mix(button.prominent ? button.tint : VLUI.panelTop, "white", button.hovered ? 0.12 : 0.05)
        lower: button.prominent ? VLUI.mix(button.tint, "black", button.hovered ? 0 : 0.05) : VLUI.mix(VLUI.panelBottom, "white", button.hovered ? 0.1 : 0)

        FocusRing {
            shown: button.visualFocus
            corner: parent.radius
        }
    }

    OMTipped {
        text: button.tip
        shown: button.hovered || button.visualFocus
    }
}
