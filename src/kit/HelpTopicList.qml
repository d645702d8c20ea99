import QtQuick
import QtQuick.Templates as T
import Ormiva.Kit

// The topics of the manual that were found. Arrows go through them.
FocusScope {
    id: topics

    required property var found
    required property string currentID

    signal chosen(string id)
    // The arrow up was pressed in the first row.
    signal leftUpwards()

    function enter() {
        if (list.count > 0)
            list.forceActiveFocus(Qt.TabFocusReason)
    }

    function go(row: int) {
        if (row >= 0 && row < list.count)
            topics.chosen(topics.found[row].id)
    }

    function rowOf(id: string): int {
        return topics.found.findIndex(topic => topic.id === id)
    }

    ScrollMotor {
        id: motor

        target: list
    }

    WheelScroll {
        motor: motor
    }

    ListView {
        id: list

        readonly property int row: topics.rowOf(topics.currentID)

        anchors.fill: parent
        model: topics.found
        currentIndex: row
        focus: true
        activeFocusOnTab: count > 0
        interactive: false
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        spacing: 2
        highlightMoveDuration: 0
        T.ScrollBar.vertical: OMScrollBar {}
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Topics")

        Keys.onUpPressed: row > 0 ? topics.go(row - 1) : topics.leftUpwards()
        Keys.onDownPressed: topics.go(row + 1)
        Keys.onPressed: event => {
            if (event.key === Qt.Key_Home)
                topics.go(0)
            else if (event.key === Qt.Key_End)
                topics.go(count - 1)
            else
                return
            event.accepted = true
        }

        delegate: HelpTopicRow {
            required property helpTopic modelData

            width: list.width
            text: modelData.title
            selected: modelData.id === topics.currentID
            focused: list.activeFocus && selected
            onClicked: topics.chosen(modelData.id)
        }
    }
}
