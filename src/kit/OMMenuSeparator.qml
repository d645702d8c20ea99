import QtQuick
import QtQuick.Templates as T
import Ormiva.Kit

// A line between groups of menu items.
T.MenuSeparator {
    implicitHeight: 9
    implicitWidth: 20

    contentItem: Item {
        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width
            height: 1
            color: VLUI.at("white", 0.14)
        }
    }
}
