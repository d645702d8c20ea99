import QtQuick
import Ormiva.Kit

// The sources of a care text as chips. One source opens its page, several offer a menu.
FlowLayout {
    id: chips

    property alias keys: list.keys
    readonly property alias list: list

    visible: list.chips.length > 0

    SourceChipList {
        id: list
    }

    Item {
        width: 14
        height: 20

        Symbol {
            anchors.centerIn: parent
            name: "text.book.closed.fill"
            size: 13
            color: VLUI.dim
        }
    }

    Repeater {
        model: list.chips

        SourceChipButton {
            required property sourceChip modelData

            chip: modelData
            maximumWidth: chips.width - 14 - chips.spacing
        }
    }
}
