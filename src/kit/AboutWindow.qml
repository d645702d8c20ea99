import QtQuick
import Ormiva.Kit

// The window of the about box; as large as what it says, at least 440 by 380.
Window {
    id: window

    function open() {
        window.show()
        window.raise()
        window.requestActivate()
    }

    title: qsTr("About %1").arg(OMInfo.appName)
    width: 440
    height: Math.max(380, view.implicitHeight)
    minimumWidth: width
    maximumWidth: width
    minimumHeight: height
    maximumHeight: height
    flags: Qt.Dialog | Qt.WindowTitleHint | Qt.WindowCloseButtonHint
    color: VLUI.bg

    Component.onCompleted: frame.restore()

    Connections {
        target: VLKAbout

        function onRequested() {
            window.open()
        }
    }

    WindowFrame {
        id: frame

        window: window
    }

    Shortcut {
        sequences: [StandardKey.Close, "Escape"]
        onActivated: window.close()
    }

    VLWindowBackground {
        anchors.fill: parent
    }

    VLKAboutView {
        id: view

        anchors.fill: parent
    }
}
