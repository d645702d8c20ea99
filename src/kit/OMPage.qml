import QtQuick
import Ormiva.Kit

// One screen: its heading and its content in a scroller.
Item {
    id: page

    required property screenInfo screen
    property string subtitle
    property alias trailing: trailing.data
    default property alias content: scroll.content

    OMHeader {
        id: header

        x: scroll.padding
        y: 22
        width: parent.width - 2 * scroll.padding - (trailing.width > 0 ? trailing.width + 16 : 0)
        title: page.screen.title
        subtitle: page.subtitle
        symbol: page.screen.symbol
    }

    Item {
        id: trailing

        anchors.right: parent.right
        anchors.rightMargin: scroll.padding
        y: header.y
        width: childrenRect.width
        height: childrenRect.height
    }

    OMScroll {
        id: scroll

        anchors.fill: parent
        anchors.topMargin: header.y + header.height
        name: page.screen.title
        padding: 24
    }
}
