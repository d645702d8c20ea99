import QtQuick
import Ormiva.Art
import Ormiva.Kit

// The ground of what is drawn without a window: the habitat, and a page over it, as wide as this and as high as the
// page wants to be.
Item {
    id: root

    default required property Component page
    property real padding: 0

    implicitHeight: loader.implicitHeight + 2 * padding

    HabitatBackground {
        anchors.fill: parent
    }

    Loader {
        id: loader

        anchors.fill: parent
        anchors.margins: root.padding
        sourceComponent: root.page
    }
}
