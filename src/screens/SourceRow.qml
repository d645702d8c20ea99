import QtQuick
import Ormiva.Kit
import Ormiva.Screens

// A source of a care sheet. It opens the page.
OMButton {
    id: row

    required property sourceLine source

    text: source.title
    implicitHeight: implicitContentHeight + 12
    Accessible.role: Accessible.Link
    Accessible.description: source.detail

    onClicked: Opener.open(source.url)

    contentItem: SourceLines {
        title: row.text
        detail: row.source.detail
        underlined: row.hovered
    }

    background: Plate {
        radius: 8
        fill: VLUI.at("white", row.down ? 0.14 : row.hovered ? 0.08 : 0)

        FocusRing {
            shown: row.visualFocus
            corner: 8
            reach: 0
        }
    }
}
