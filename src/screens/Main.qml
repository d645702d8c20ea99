import QtQml
import QtQuick
import Ormiva.Art
import Ormiva.Kit
import Ormiva.Screens

// The main window. The menu bar stays at its size; everything below it zooms.
Window {
    id: window

    readonly property real roomWidth: Screen.desktopAvailableWidth
    readonly property real roomHeight: Screen.desktopAvailableHeight

    title: OMInfo.appName
    width: Math.min(1380, roomWidth)
    height: Math.min(900, roomHeight)
    minimumWidth: Math.min(900, roomWidth)
    minimumHeight: Math.min(600, roomHeight)
    color: VLUI.bg
    visible: true
    onClosing: Qt.quit()

    HabitatBackground {
        anchors.fill: parent
    }

    VLZoomHost {
        anchors.top: menus.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        minimumWidth: 1180
        minimumHeight: 760

        MainWindow {
            anchors.fill: parent
        }
    }

    // Not as actions of the menu's items: those that a Repeater makes hear no key until the menu has been open.
    Instantiator {
        model: Screens.all
        delegate: Shortcut {
            required property screenInfo modelData

            sequence: modelData.shortcut
            onActivated: AppModel.screen = modelData.id
        }
    }

    Shortcut {
        sequence: "Ctrl+="
        onActivated: VLUI.zoomIn()
    }
    Shortcut {
        sequence: "F1"
        onActivated: VLKHelp.show()
    }

    MainMenuBar {
        id: menus

        width: parent.width
    }

    // The other windows, each made when it is first asked for; it then answers by itself.
    Connections {
        target: VLKHelp

        function onRequested(topic: string) {
            if (help.active)
                return
            help.active = true
            VLKHelp.show(topic)
        }
    }
    Connections {
        target: VLKAbout

        function onRequested() {
            if (about.active)
                return
            about.active = true
            VLKAbout.show()
        }
    }
    Loader {
        id: help

        active: false
        sourceComponent: HelpWindow {}
    }
    Loader {
        id: about

        active: false
        sourceComponent: AboutWindow {}
    }
}
