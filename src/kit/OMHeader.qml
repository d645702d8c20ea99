import QtQuick
import Ormiva.Kit

// The heading of a page.
Row {
    id: header

    property string title
    property string subtitle
    property string symbol

    spacing: 12

    Symbol {
        y: heading.y + (heading.height - height) / 2
        name: header.symbol
        size: 20
        color: VLUI.accent
    }

    Column {
        id: texts

        width: header.width - 20 - header.spacing
        spacing: 4

        OMText {
            id: heading

            width: parent.width
            text: header.title
            size: 26
            font.weight: Font.Bold
            wrapMode: Text.Wrap
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        OMText {
            width: parent.width
            visible: text !== ""
            text: header.subtitle
            color: VLUI.dim
            wrapMode: Text.Wrap
            lineHeight: 1.15
        }
    }
}
