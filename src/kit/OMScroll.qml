import QtQuick
import QtQuick.Templates as T
import Ormiva.Kit

// A vertical scroller that keeps its content at full width.
ScrollArea {
    id: scroll

    default property alias content: column.data
    property alias contentY: flick.contentY
    property alias spacing: column.spacing

    implicitHeight: flick.contentHeight
    target: flick

    Flickable {
        id: flick

        anchors.fill: parent
        interactive: false
        boundsBehavior: Flickable.StopAtBounds
        clip: !OMRender.snapshotMode
        contentWidth: width
        contentHeight: column.implicitHeight + 2 * scroll.padding
        T.ScrollBar.vertical: OMScrollBar {}

        Column {
            id: column

            x: Math.max(scroll.padding, (flick.width - width) / 2)
            y: scroll.padding
            width: scroll.contentWidth
            spacing: 18
        }
    }
}
