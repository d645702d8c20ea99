import QtQuick
import QtQuick.Templates as T
import Ormiva.Kit

// The base of windows within the window: scaled like the content from its top left, kept inside the window.
T.Popup {
    id: popup

    // False for what belongs to the parts of the window that don't zoom.
    property bool zoomed: true

    scale: zoomed ? VLUI.zoom : 1
    transformOrigin: T.Popup.TopLeft
    margins: 8
    padding: 0
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding

    T.Overlay.modal: Rectangle {
        color: VLUI.at("black", 0.55)
    }
}
