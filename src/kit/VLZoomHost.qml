import QtQuick
import QtQuick.Templates as T
import Ormiva.Kit

// Lays its content out at a logical size and shows it scaled. It scrolls only where the window is smaller than
// the content may become.
Item {
    id: host

    default property alias content: origin.data
    property real minimumWidth: 960
    property real minimumHeight: 640
    property real zoom: VLUI.zoom

    readonly property real logicalWidth: Math.max(width / zoom, minimumWidth)
    readonly property real logicalHeight: Math.max(height / zoom, minimumHeight)
    readonly property real scaledWidth: logicalWidth * zoom
    readonly property real scaledHeight: logicalHeight * zoom
    // One point absorbs rounding, so that a window that fits has no scroll bars.
    readonly property bool scrollsSideways: width + 1 < scaledWidth
    readonly property bool scrollsUpright: height + 1 < scaledHeight
    readonly property alias motor: motor
    property alias contentX: flick.contentX
    property alias contentY: flick.contentY

    onZoomChanged: motor.home()
    onWidthChanged: motor.home()
    onHeightChanged: motor.home()
    Component.onCompleted: motor.home()

    ScrollMotor {
        id: motor

        target: flick
    }

    WheelScroll {
        motor: host.motor
        enabled: host.scrollsSideways || host.scrollsUpright
    }

    Flickable {
        id: flick

        anchors.fill: parent
        clip: host.scrollsSideways || host.scrollsUpright
        interactive: false
        contentWidth: host.scrollsSideways ? host.scaledWidth : width
        contentHeight: host.scrollsUpright ? host.scaledHeight : height
        T.ScrollBar.vertical: OMScrollBar {}
        T.ScrollBar.horizontal: OMScrollBar {}

        Item {
            id: origin

            width: host.logicalWidth
            height: host.logicalHeight
            scale: host.zoom
            transformOrigin: Item.TopLeft
        }
    }
}
