import QtQuick
import Ormiva.Kit

// The heading of a screen. What lies below it begins at `bodyTop`.
Item {
    id: frame

    required property screenInfo screen
    property string subtitle
    property real padding: 24
    property alias trailing: trailing.data
    readonly property real bodyTop: header.y + header.height

    OMHeader {
        id: header

        x: frame.padding
        y: 22
        width: parent.width - 2 * frame.padding - (trailing.width > 0 ? trailing.width + 16 : 0)
        title: frame.screen.title
        subtitle: frame.subtitle
        symbol: frame.screen.symbol
    }

    Item {
        id: trailing

        anchors.right: parent.right
        anchors.rightMargin: frame.padding
        y: header.y
        width: childrenRect.width
        height: childrenRect.height
    }
}
