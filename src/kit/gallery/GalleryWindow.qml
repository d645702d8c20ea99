import QtQuick
import Ormiva.Art
import Ormiva.Kit

// The gallery as a window of its own; the menus change theme and zoom.
Window {
    title: "Gallery"
    width: 1100
    height: 860
    visible: true

    HabitatBackground {
        anchors.fill: parent
    }

    VLZoomHost {
        anchors.top: menus.bottom
        width: parent.width
        anchors.bottom: parent.bottom
        minimumWidth: 700
        minimumHeight: 400

        Gallery {
            anchors.fill: parent
        }
    }

    OMMenuBar {
        id: menus

        width: parent.width

        VLZoomCommands {}
        VLKThemeCommands {}
    }
}
