import QtQuick
import Ormiva.Kit

// The window of the manual. Each time it is opened it begins anew.
Window {
    id: window

    property string topic

    readonly property alias viewer: viewer.item

    // Shows the window on a topic, or on the first one.
    function open(id: string) {
        viewer.active = false
        window.topic = id
        viewer.active = true
        window.show()
        window.raise()
        window.requestActivate()
    }

    title: qsTr("%1 Help").arg(OMInfo.appName)
    width: 860
    height: 600
    minimumWidth: 520
    minimumHeight: 360
    transientParent: null // It may lie behind the main window.
    color: VLUI.bg

    Component.onCompleted: frame.restore()

    Connections {
        target: VLKHelp

        function onRequested(topic: string) {
            window.open(topic)
        }
    }

    WindowFrame {
        id: frame

        window: window
        key: "VLKHelpWindow"
    }

    Shortcut {
        sequences: [StandardKey.Close, "Escape"]
        onActivated: window.close()
    }
    VLWindowBackground {
        anchors.fill: parent
    }

    Loader {
        id: viewer

        anchors.fill: parent
        focus: true
        active: false
        sourceComponent: VLKHelpViewer {
            initialTopic: window.topic
        }
    }
}
