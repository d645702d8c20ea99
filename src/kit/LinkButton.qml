import QtQuick
import Ormiva.Kit

// A text that opens a page.
OMButton {
    id: link

    property string url
    property real size: 13

    horizontalPadding: 4
    verticalPadding: 2
    Accessible.role: Accessible.Link
    Accessible.description: url
    onClicked: Opener.open(url)

    contentItem: OMText {
        text: link.text
        size: link.size
        font.underline: link.hovered
        color: VLUI.mix(VLUI.accent, "white", link.down ? 0.75 : 0.6)
    }

    FocusRing {
        shown: link.visualFocus
        corner: 5
        reach: 0
    }
}
