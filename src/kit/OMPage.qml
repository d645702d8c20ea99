import QtQuick
import Ormiva.Kit

// One screen: its heading and its content in a scroller.
PageFrame {
    id: page

    default property alias content: scroll.content

    implicitHeight: bodyTop + scroll.implicitHeight

    OMScroll {
        id: scroll

        anchors.fill: parent
        anchors.topMargin: page.bodyTop
        name: page.screen.title
        padding: page.padding
    }
}
