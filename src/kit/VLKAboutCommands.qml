import QtQuick
import Ormiva.Kit

// What the program is and who makes it.
OMMenu {
    title: OMInfo.appName
    mnemonic: "o"
    zoomed: false

    OMMenuItem {
        text: qsTr("About %1").arg(OMInfo.appName)
        onTriggered: VLKAbout.show()
    }
    OMMenuItem {
        text: qsTr("Ventrel Website")
        onTriggered: Opener.open(VLKAbout.website)
    }
}
