import QtQuick
import QtQuick.Templates as T
import Ormiva.Kit

// A check box with a title.
T.CheckBox {
    id: toggle

    property alias title: toggle.text
    // What a screen reader says before the title, and what it adds.
    property string controlName
    property string controlHelp

    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: 30
    leftPadding: text === "" ? 18 : 26
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    opacity: enabled ? 1 : 0.4
    Accessible.role: Accessible.CheckBox
    Accessible.name: controlName === "" || text === "" ? controlName + text : controlName + ": " + text
    Accessible.description: controlHelp

    contentItem: OMText {
        text: toggle.text
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
    }

    indicator: Plate {
        y: (toggle.height - height) / 2
        width: 18
        height: 18
        radius: 5
        rimWidth: toggle.checked ? 0.5 : 1
        rim: VLUI.at("white", toggle.hovered ? 0.6 : 0.4)
        fill: toggle.checked ? VLUI.mix(VLUI.accent, toggle.down ? "black" : "white", toggle.down ? 0.2 : toggle.hovered ? 0.15 : 0)
                             : VLUI.at(toggle.down ? "white" : "black", toggle.down ? 0.15 : 0.26)

        Symbol {
            anchors.centerIn: parent
            visible: toggle.checked
            name: "checkmark"
            size: 15
            color: "white"
        }
    }

    FocusRing {
        anchors.margins: 0
        anchors.leftMargin: -4
        anchors.rightMargin: -6
        shown: toggle.visualFocus
        corner: 5
    }
}
