import QtQuick
import QtQuick.Templates as T
import Ormiva.Kit

// A vertical list that makes rows only for what is seen, for pages of any length. It scrolls as OMScroll does. Rows
// are `contentWidth` wide; what stands above and below them scrolls with them.
ScrollArea {
    id: scroll

    property alias model: list.model
    property alias delegate: list.delegate
    property alias section: list.section
    property alias contentY: list.contentY
    property alias count: list.count
    property real spacing: 18
    property Component header
    property Component footer

    // The height of rows that were never made is a guess, so it is not told in a window.
    implicitHeight: OMRender.snapshotMode ? list.contentHeight : 0
    target: list

    // Cut off here and not at the list, so that the shadows of rows are not cut at their sides.
    Item {
        anchors.fill: parent
        clip: !OMRender.snapshotMode

        ListView {
            id: list

            x: Math.max(scroll.padding, (parent.width - width) / 2)
            width: scroll.contentWidth
            height: parent.height
            interactive: false
            boundsBehavior: Flickable.StopAtBounds
            spacing: scroll.spacing
            T.ScrollBar.vertical: OMScrollBar {
                parent: scroll
                anchors.top: parent.top
                anchors.right: parent.right
                anchors.bottom: parent.bottom
            }

            header: Item {
                width: list.width
                height: scroll.padding + (above.item ? above.height + (list.count > 0 ? scroll.spacing : 0) : 0)

                Loader {
                    id: above

                    y: scroll.padding
                    width: parent.width
                    sourceComponent: scroll.header
                }
            }
            footer: Item {
                width: list.width
                height: scroll.padding + (below.item ? below.height + scroll.spacing : 0)

                Loader {
                    id: below

                    y: scroll.spacing
                    width: parent.width
                    sourceComponent: scroll.footer
                }
            }
        }
    }
}
