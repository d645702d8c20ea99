import QtQuick
import Ormiva.Art
import Ormiva.Kit

// The whole gallery at the zoom of the preferences, for a picture.
Item {
    implicitHeight: page.implicitHeight * VLUI.zoom

    HabitatBackground {
        anchors.fill: parent
    }

    Gallery {
        id: page

        width: parent.width / VLUI.zoom
        height: implicitHeight
        scale: VLUI.zoom
        transformOrigin: Item.TopLeft
    }
}
