import QtQuick
import Ormiva.Kit

// The ground of a field for text.
Plate {
    id: plate

    property bool hovered: false
    property bool focused: false

    radius: 10
    fill: VLUI.at("black", focused ? 0.38 : 0.26)
    rimWidth: 0.5
    rim: VLUI.at("white", hovered && enabled ? 0.5 : 0.35)

    FocusRing {
        shown: plate.focused
        corner: plate.radius
        reach: 2
    }
}
