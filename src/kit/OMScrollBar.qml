import QtQuick
import QtQuick.Templates as T
import Ormiva.Kit

// A thin scroll bar that lies over the content and shows only when there is something to scroll.
T.ScrollBar {
    id: bar

    implicitWidth: orientation === Qt.Vertical ? 10 : 100
    implicitHeight: orientation === Qt.Vertical ? 100 : 10
    padding: 2
    minimumSize: 0.06
    hoverEnabled: true
    visible: size < 1 && !OMRender.snapshotMode
    Accessible.ignored: true

    contentItem: Plate {
        radius: 3
        fill: VLUI.at("white", bar.pressed ? 0.6 : bar.hovered ? 0.45 : 0.24)
    }
}
