import QtQuick
import Ormiva.Kit
import Ormiva.Screens

// The side rail and the screen beside it, with the alerts and the editor sheet that lie over them.
Item {
    id: main

    implicitHeight: Math.max(rail.implicitHeight, host.implicitHeight)

    SideRail {
        id: rail

        width: 240
        height: parent.height
    }

    ScreenHost {
        id: host

        anchors.left: rail.right
        anchors.right: parent.right
        height: parent.height
        focus: true
    }

    // Each layer is made anew when it is needed: the sheet once for each record it opens on.
    Loader {
        active: AppModel.sheetIdentity !== ""
        sourceComponent: EditorHost {
            identity: AppModel.sheetIdentity
        }
    }
    Loader {
        active: AppModel.confirming
        sourceComponent: ConfirmAlert {}
    }
    Loader {
        active: AppModel.message !== ""
        sourceComponent: MessageAlert {}
    }
}
