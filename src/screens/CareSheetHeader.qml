import QtQuick
import Ormiva.Art
import Ormiva.Kit
import Ormiva.Screens

// The head of a care sheet: who it is about, and what can be done about it.
Item {
    id: header

    required property CareSheet sheet

    // Beside a name of many lines, drawing and actions stay at the top.
    readonly property real topmost: 8

    implicitHeight: Math.max(icon.height, texts.implicitHeight, actions.implicitHeight)

    SpeciesIcon {
        id: icon

        y: Math.min(header.topmost, (header.height - height) / 2)
        size: 96
        art: header.sheet.species.art
        palette: header.sheet.species.palette
    }

    Column {
        id: texts

        anchors.left: icon.right
        anchors.leftMargin: 20
        anchors.right: actions.left
        anchors.rightMargin: 20
        y: (header.height - height) / 2
        spacing: 4

        OMText {
            width: parent.width
            text: header.sheet.species.name
            size: 30
            font.weight: Font.Bold
            wrapMode: Text.Wrap
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        OMText {
            width: parent.width
            text: header.sheet.species.scientific
            size: 15
            font.italic: true
            color: VLUI.dim
            wrapMode: Text.Wrap
        }
        OMText {
            width: parent.width
            topPadding: 4
            text: header.sheet.headerLine
            size: 11
            font.weight: Font.DemiBold
            font.letterSpacing: 0.8
            color: VLUI.dim
            wrapMode: Text.Wrap
        }
    }

    Column {
        id: actions

        anchors.right: parent.right
        y: Math.min(header.topmost, (header.height - height) / 2)
        spacing: 8

        VLChromeButton {
            anchors.right: parent.right
            text: qsTr("Add as My Pet")
            symbol: "plus"
            prominent: true
            onClicked: AppModel.editNewPet(header.sheet.speciesID)
        }
        VLChromeButton {
            anchors.right: parent.right
            text: qsTr("Check Symptoms")
            symbol: "stethoscope"
            onClicked: AppModel.checkSymptoms(header.sheet.speciesID)
        }
        VLChromeButton {
            anchors.right: parent.right
            text: qsTr("Find an exotic vet")
            symbol: "cross.case.fill"
            onClicked: AppModel.screen = "vets"
        }
    }
}
