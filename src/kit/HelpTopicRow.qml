import QtQuick
import Ormiva.Kit

// A topic in the list of the manual.
OMButton {
    id: row

    property bool selected: false
    property bool focused: false

    implicitHeight: implicitContentHeight + 14
    activeFocusOnTab: false
    Accessible.role: Accessible.ListItem
    Accessible.selectable: true
    Accessible.selected: selected

    contentItem: OMText {
        leftPadding: 10
        rightPadding: 10
        text: row.text
        font.weight: row.selected ? Font.Bold : Font.Medium
        wrapMode: Text.Wrap
        verticalAlignment: Text.AlignVCenter
    }

    background: Plate {
        radius: 9
        fill: row.selected ? VLUI.at(VLUI.accent, 0.45) : VLUI.at("white", row.down ? 0.16 : row.hovered ? 0.09 : 0)

        FocusRing {
            shown: row.focused
            corner: 9
            reach: 0
        }
    }
}
