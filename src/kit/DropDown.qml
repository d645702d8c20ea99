import QtQuick
import QtQuick.Templates as T
import Ormiva.Kit

// A pop-up under its parent, or above it where there is more room. It covers its parent only when neither place
// has the height that it needs at least.
VLPopup {
    id: drop

    property real wantedHeight: implicitHeight
    property real leastHeight: wantedHeight
    readonly property Item ground: T.Overlay.overlay
    readonly property real room: (ground ? ground.height : 600) / scale - 2 * margins
    readonly property real gap: 4
    readonly property bool hangs: below >= Math.min(wantedHeight, above)
    property real above: 0
    property real below: 0

    y: parent ? hangs ? parent.height + gap : -height - gap : 0
    height: Math.min(room, wantedHeight, Math.max(below, above, leastHeight))
    focus: true
    padding: 5
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent
    onAboutToShow: measure()
    onRoomChanged: measure()
    onScaleChanged: measure()

    function measure() {
        if (!parent || !ground)
            return
        const top = parent.mapToItem(ground, 0, 0).y / scale
        above = top - gap - margins
        below = ground.height / scale - top - parent.height - gap - margins
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
}
