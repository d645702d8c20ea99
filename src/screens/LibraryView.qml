import QtQuick
import Ormiva.Kit
import Ormiva.Screens

// The species library: a list that can be searched on the left, the care sheet of the chosen species on the right.
FocusScope {
    id: view

    readonly property alias results: results

    implicitHeight: Math.max(list.y + list.implicitHeight, sheetView.implicitHeight)
    focus: true

    LibraryModel {
        id: results

        query: search.text
    }

    Shortcut {
        sequences: [StandardKey.Find]
        onActivated: {
            search.input.forceActiveFocus(Qt.ShortcutFocusReason)
            search.input.selectAll()
        }
    }

    Item {
        id: left

        width: Math.max(320, Math.min(372, parent.width * 0.31))
        height: parent.height

        // Quieter ground, from which the rows stand out.
        Rectangle {
            anchors.fill: parent
            color: VLUI.at("black", 0.45)
        }

        VLSearchField {
            id: search

            x: 16
            y: 18
            width: parent.width - 32
            focus: true
            prompt: qsTr("Search care sheets (e.g. UVB, calcium, shed)")
            Keys.onDownPressed: list.enter()
        }

        FilterChips {
            id: chips

            anchors.top: search.bottom
            anchors.topMargin: 12
            width: parent.width
            filters: results.filters
            group: results.group
            onChosen: group => results.group = group
        }

        OMText {
            id: countLine

            anchors.top: chips.bottom
            anchors.topMargin: 12
            x: 20
            text: results.countLine
            size: 11
            font.weight: Font.DemiBold
            color: VLUI.dim
        }

        SpeciesList {
            id: list

            anchors.top: countLine.bottom
            anchors.topMargin: 6
            anchors.bottom: parent.bottom
            width: parent.width
            results: results
            onLeftUpwards: search.input.forceActiveFocus(Qt.OtherFocusReason)
        }
    }

    Rectangle {
        id: divider

        anchors.left: left.right
        width: 1
        height: parent.height
        color: VLUI.at("white", 0.14)
    }

    CareSheetView {
        id: sheetView

        anchors.left: divider.right
        anchors.right: parent.right
        height: parent.height
        speciesID: AppModel.speciesID
        highlight: results.query
    }
}
