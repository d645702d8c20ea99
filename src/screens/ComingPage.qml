import QtQuick
import Ormiva.Kit
import Ormiva.Screens

// The place of a screen that isn't built yet.
OMPage {
    OMText {
        width: parent.width
        text: qsTr("This screen is still to come.")
        color: VLUI.dim
        wrapMode: Text.Wrap
    }
}
