import QtQuick
import Ormiva.Kit

// The manual: its topics with a search on the left, the current topic on the right.
FocusScope {
    id: viewer

    property string initialTopic
    property alias query: search.text
    property string selected

    readonly property var found: VLKHelp.search(query)
    readonly property helpTopic current: VLKHelp.current(selected, initialTopic, query)
    readonly property alias search: search

    focus: true

    Shortcut {
        sequences: [StandardKey.Find]
        onActivated: search.input.forceActiveFocus(Qt.ShortcutFocusReason)
    }

    VLPanel {
        id: left

        x: 16
        y: 16
        width: Math.min(280, parent.width * 0.36)
        height: parent.height - 32
        radius: 22
        padding: 12

        VLSearchField {
            id: search

            width: parent.width
            focus: true
            prompt: qsTr("Search help")
            Keys.onDownPressed: topics.enter()
        }

        HelpTopicList {
            id: topics

            y: search.height + 10
            width: parent.width
            height: parent.height - y
            found: viewer.found
            currentID: viewer.current.id
            onChosen: id => viewer.selected = id
            onLeftUpwards: search.input.forceActiveFocus(Qt.OtherFocusReason)
        }

        OMText {
            y: search.height + 18
            x: 6
            width: parent.width - 12
            visible: viewer.found.length === 0
            text: qsTr("Nothing found for \"%1\".").arg(viewer.query)
            size: 12
            color: VLUI.dim
            wrapMode: Text.Wrap
        }
    }

    VLPanel {
        anchors.left: left.right
        anchors.leftMargin: 16
        anchors.right: parent.right
        anchors.rightMargin: 16
        y: 16
        height: parent.height - 32
        radius: 22
        padding: 20

        OMScroll {
            id: page

            anchors.fill: parent
            visible: viewer.current.id !== ""
            padding: 0
            spacing: 10
            name: viewer.current.title

            OMText {
                width: parent.width
                text: viewer.current.title
                size: 22
                font.weight: Font.Black
                wrapMode: Text.Wrap
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            Rectangle {
                width: parent.width
                height: 1
                color: VLUI.at("white", 0.18)
            }
            HelpText {
                width: parent.width - 14
                body: viewer.current.body
            }
        }
    }

    onCurrentChanged: page.contentY = 0
}
