import QtQuick
import Ormiva.Kit

// Shows a tool tip for its parent while `shown`. The tip itself is made when it is first needed.
Loader {
    id: tipped

    property string text
    property bool shown: false

    active: shown && text !== ""
    sourceComponent: OMToolTip {
        parent: tipped.parent
        text: tipped.text
        Component.onCompleted: visible = true
    }
}
