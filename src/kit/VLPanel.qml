import QtQuick
import Ormiva.Kit

// A rounded panel with a shadow.
Item {
    id: panel

    default property alias content: holder.data
    property real padding: 12
    property real radius: 20

    implicitWidth: holder.childrenRect.width + 2 * padding
    implicitHeight: holder.childrenRect.height + 2 * padding

    SoftShade {}

    Plate {
        anchors.fill: parent
        radius: panel.radius
        rimWidth: 0.5
        rim: VLUI.rim
        upper: VLUI.panelTop
        lower: VLUI.panelBottom
    }

    Item {
        id: holder

        anchors.fill: parent
        anchors.margins: panel.padding
    }
}
