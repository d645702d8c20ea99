import QtQuick
import Ormiva.Kit

// What a menu item says: its title, and the keys that do the same.
Item {
    id: label

    property string title
    property string keys
    property bool highlighted: false

    implicitWidth: text.implicitWidth + (keyText.visible ? keyText.implicitWidth + 28 : 0)
    implicitHeight: text.implicitHeight
    opacity: enabled ? 1 : 0.4

    OMText {
        id: text

        anchors.left: parent.left
        anchors.right: keyText.visible ? keyText.left : parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: label.title
        size: 12.5
        color: label.highlighted ? VLUI.inkOn(VLUI.accent) : VLUI.text
        elide: Text.ElideRight
    }
    OMText {
        id: keyText

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        visible: label.keys !== ""
        text: label.keys
        size: 11.5
        color: label.highlighted ? VLUI.inkOn(VLUI.accent) : VLUI.dim
    }
}
