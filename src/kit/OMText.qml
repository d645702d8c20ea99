import QtQuick
import Ormiva.Kit

// Text of the interface: plain, in the theme's colour, in the application's font.
Text {
    // In pixels before the zoom; fractions count.
    property real size: 13

    color: VLUI.text
    textFormat: Text.PlainText
    font.pointSize: size * VLUI.pointsPerPixel
}
