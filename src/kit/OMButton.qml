import QtQuick
import Ormiva.Kit

// What all buttons have in common: hovering, the focus by Tab but not by the mouse, and Space and Return to press
// them. `contentItem` lies inside the paddings, `background` under the whole.
FocusItem {
    id: button

    property string text
    property Item contentItem: null
    property Item background: null
    property real horizontalPadding: 0
    property real verticalPadding: 0
    readonly property real implicitContentWidth: contentItem ? contentItem.implicitWidth : 0
    readonly property real implicitContentHeight: contentItem ? contentItem.implicitHeight : 0
    readonly property bool hovered: mouse.containsMouse
    property bool down: mouse.pressed && mouse.containsMouse || keys.held

    signal clicked()

    implicitWidth: implicitContentWidth + 2 * horizontalPadding
    implicitHeight: implicitContentHeight + 2 * verticalPadding
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.focusable: activeFocusOnTab
    Accessible.onPressAction: clicked()

    onContentItemChanged: {
        if (!contentItem)
            return
        contentItem.parent = button
        contentItem.x = Qt.binding(() => button.horizontalPadding)
        contentItem.y = Qt.binding(() => button.verticalPadding)
        contentItem.width = Qt.binding(() => button.width - 2 * button.horizontalPadding)
        contentItem.height = Qt.binding(() => button.height - 2 * button.verticalPadding)
    }
    onBackgroundChanged: {
        if (!background)
            return
        background.parent = button
        background.z = -1
        background.width = Qt.binding(() => button.width)
        background.height = Qt.binding(() => button.height)
    }

    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onPressed: event => {
        if (event.key !== Qt.Key_Space || event.isAutoRepeat)
            return
        keys.held = true
        event.accepted = true
    }
    Keys.onReleased: event => {
        if (event.key !== Qt.Key_Space || event.isAutoRepeat || !keys.held)
            return
        keys.held = false
        event.accepted = true
        clicked()
    }
    onActiveFocusChanged: keys.held = false

    QtObject {
        id: keys

        // Whether Space is down; the button is pressed when it comes up.
        property bool held: false
    }

    MouseArea {
        id: mouse

        anchors.fill: parent
        hoverEnabled: true
        onClicked: button.clicked()
    }
}
