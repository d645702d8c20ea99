import QtQuick
import QtQuick.Templates as T
import Ormiva.Kit

// A modal panel in the middle of the window. It holds the focus until it is closed, and then gives it back.
VLPopup {
    id: dialog

    property real idealWidth: 440
    property string name
    // What had the focus before.
    property Item before: null

    signal escaped()

    readonly property real room: (parent ? parent.height : 600) / scale - 2 * margins

    parent: T.Overlay.overlay
    x: parent ? Math.round((parent.width - width * scale) / 2) : 0
    y: parent ? Math.round((parent.height - height * scale) / 2.4) : 0
    width: Math.min(idealWidth, (parent ? parent.width : idealWidth) / scale - 2 * margins)
    modal: true
    focus: true
    closePolicy: T.Popup.NoAutoClose
    padding: 22

    onAboutToShow: before = parent && parent.Window.window ? parent.Window.window.activeFocusItem : null
    // It ends by being destroyed, and a popup gives the focus back only when it is closed.
    Component.onDestruction: if (before) before.forceActiveFocus(Qt.PopupFocusReason)

    background: Item {
        SoftShade {}

        Plate {
            anchors.fill: parent
            radius: 16
            rimWidth: 1
            rim: VLUI.rim
            upper: VLUI.panelTop
            lower: VLUI.panelBottom
        }
    }

    contentItem: FocusScope {
        focus: true
        implicitHeight: childrenRect.height
        Accessible.role: Accessible.Dialog
        Accessible.name: dialog.name
        Keys.onEscapePressed: dialog.escaped()
    }
}
