import QtQuick
import Ormiva.Kit

// An icon, told by its symbol name.
Item {
    id: symbol

    property string name
    property real size: 16
    property color color: VLUI.text

    implicitWidth: size
    implicitHeight: size
    Accessible.ignored: true

    Text {
        anchors.fill: parent
        visible: text !== ""
        text: Symbols.glyph(symbol.name)
        textFormat: Text.PlainText
        font.family: VLUI.iconFamily
        font.pixelSize: Math.round(symbol.size)
        color: symbol.color
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }

    Loader {
        anchors.fill: parent
        active: Symbols.isDrawn(symbol.name)
        sourceComponent: DrawnSymbol {
            name: symbol.name
            color: symbol.color
        }
    }
}
