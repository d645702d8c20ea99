import QtQuick
import Ormiva.Kit

// The two lines of a source.
Item {
    id: source

    property string title
    property string detail
    property bool underlined: false

    implicitHeight: lines.implicitHeight

    Column {
        id: lines

        x: 8
        width: parent.width - 16
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        OMText {
            width: parent.width
            text: source.title
            size: 12.5
            font.weight: Font.Medium
            font.underline: source.underlined
            wrapMode: Text.Wrap
        }
        OMText {
            width: parent.width
            text: source.detail
            size: 11
            color: VLUI.dim
            wrapMode: Text.WrapAnywhere
        }
    }
}
