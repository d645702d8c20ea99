import QtQuick
import QtQuick.Templates as T
import Ormiva.Kit

// A menu. It scales like the content when it belongs there, and keeps itself inside the window.
T.Menu {
    id: menu

    property bool zoomed: true

    readonly property real room: (T.Overlay.overlay ? T.Overlay.overlay.height : 600) / scale - 2 * margins

    implicitWidth: Math.min(460, Math.max(190, widest()) + leftPadding + rightPadding)
    implicitHeight: Math.min(room, contentHeight + topPadding + bottomPadding)
    padding: 5
    margins: 6
    overlap: 1
    scale: zoomed ? VLUI.zoom : 1
    transformOrigin: T.Popup.TopLeft

    function widest(): real {
        let width = 0
        for (let i = 0; i < count; ++i)
            width = Math.max(width, itemAt(i) ? itemAt(i).implicitWidth : 0)
        return width
    }

    contentItem: ListView {
        implicitHeight: contentHeight
        model: menu.contentModel
        currentIndex: menu.currentIndex
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        T.ScrollBar.vertical: OMScrollBar {}
    }

    background: Item {
        SoftShade {}

        Plate {
            anchors.fill: parent
            radius: 10
            fill: VLUI.mix(VLUI.panelBottom, "black", 0.18)
            rimWidth: 1
            rim: VLUI.rim
        }
    }

    delegate: OMMenuItem {}
}
