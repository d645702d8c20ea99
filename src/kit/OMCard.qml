import QtQuick
import Ormiva.Kit

// A panel with a title row. A tint colours the title and the rim.
Item {
    id: card

    property string title
    property string symbol
    property real padding: 16
    property color tint: "transparent"
    // How much of the tint goes into the panel, 0 to 1.
    property real tintStrength: 0.3
    default property alias content: body.data

    readonly property bool tinted: tint.a > 0

    implicitHeight: column.implicitHeight + 2 * padding
    Accessible.role: Accessible.Grouping
    Accessible.name: title

    SoftShade {}

    Plate {
        anchors.fill: parent
        radius: 16
        rimWidth: card.tinted ? 1 : 0.5
        rim: card.tinted ? VLUI.at(card.tint, 0.75) : VLUI.at("white", 0.3)
        upper: VLUI.at(card.tinted ? VLUI.mix(VLUI.panelTop, card.tint, card.tintStrength) : VLUI.panelTop, 0.93)
        lower: VLUI.at(card.tinted ? VLUI.mix(VLUI.panelBottom, card.tint, card.tintStrength * 0.6) : VLUI.panelBottom, 0.95)
    }

    Column {
        id: column

        x: card.padding
        y: card.padding
        width: card.width - 2 * card.padding
        spacing: 10

        Item {
            width: parent.width
            height: Math.max(icon.height, heading.height)
            visible: card.title !== ""

            Symbol {
                id: icon

                y: (heading.firstLine - height) / 2
                visible: card.symbol !== ""
                name: card.symbol
                size: 17
                color: card.tinted ? VLUI.mix(card.tint, "white", 0.45) : VLUI.mix(VLUI.accent, "white", 0.45)
            }
            OMText {
                id: heading

                readonly property real firstLine: height / Math.max(1, lineCount)

                anchors.left: icon.visible ? icon.right : parent.left
                anchors.leftMargin: icon.visible ? 9 : 0
                anchors.right: parent.right
                text: card.title
                size: 14.5
                font.weight: Font.DemiBold
                wrapMode: Text.Wrap
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
        }

        Column {
            id: body

            width: parent.width
            spacing: 12
        }
    }
}
