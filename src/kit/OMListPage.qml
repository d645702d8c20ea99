import QtQuick
import Ormiva.Kit

// One screen whose content is a long list: its heading, and rows that are made only where they are seen. A row is
// `rowWidth` wide.
PageFrame {
    id: page

    property alias model: list.model
    property alias delegate: list.delegate
    property alias section: list.section
    property alias spacing: list.spacing
    property alias listHeader: list.header
    property alias listFooter: list.footer
    property alias contentY: list.contentY
    readonly property real rowWidth: list.contentWidth

    implicitHeight: bodyTop + list.implicitHeight

    OMList {
        id: list

        anchors.fill: parent
        anchors.topMargin: page.bodyTop
        name: page.screen.title
        padding: page.padding
    }
}
