import QtQuick
import QtQuick.Templates as T
import Ormiva.Kit

// A tool tip under its parent, kept inside the window at every zoom.
T.ToolTip {
    id: tip

    property bool zoomed: true

    x: 0
    y: parent ? parent.height + 6 : 0
    implicitWidth: Math.min(420, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    horizontalPadding: 10
    verticalPadding: 7
    margins: 6
    delay: 600
    scale: zoomed ? VLUI.zoom : 1
    transformOrigin: T.Popup.TopLeft
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent

    contentItem: OMText {
        text: tip.text
        wrapMode: Text.Wrap
        size: 11.5
        lineHeight: 1.15
    }

    background: Plate {
        radius: 8
        fill: VLUI.mix(VLUI.panelBottom, "black", 0.25)
        rimWidth: 1
        rim: VLUI.rim
    }
}
