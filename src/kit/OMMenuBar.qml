import QtQuick
import QtQuick.Templates as T
import Ormiva.Kit

// The menu bar of a window. It doesn't zoom.
T.MenuBar {
    id: bar

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: 30
    leftPadding: 8

    delegate: OMMenuBarItem {}

    contentItem: Row {
        spacing: 2

        Repeater {
            model: bar.contentModel
        }
    }

    background: Rectangle {
        color: VLUI.mix(VLUI.panelBottom, "black", 0.25)

        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: VLUI.at("white", 0.1)
        }
    }
}
