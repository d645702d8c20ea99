import QtQuick
import Ormiva.Kit

// The plain background of a window: the theme's ground with a soft light from above.
Rectangle {
    id: background

    color: VLUI.bg

    Rectangle {
        width: parent.width
        height: 700
        gradient: Gradient {
            GradientStop { position: 0; color: VLUI.mix(VLUI.bg, "white", 0.25) }
            GradientStop { position: 1; color: VLUI.bg }
        }
    }
}
