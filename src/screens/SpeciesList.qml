import QtQuick
import QtQuick.Templates as T
import Ormiva.Kit
import Ormiva.Screens

// The list of species. Arrows move in it, Return or Space opens the care sheet.
FocusScope {
    id: species

    required property LibraryModel results

    // The arrow up was pressed in the first row.
    signal leftUpwards()

    implicitHeight: OMRender.snapshotMode ? list.contentHeight + list.topMargin + list.bottomMargin : 0

    // Takes the focus, on the open species when it is listed.
    function enter() {
        if (list.count === 0)
            return
        if (list.currentIndex < 0)
            list.currentIndex = Math.max(0, results.rowOf(AppModel.speciesID))
        list.forceActiveFocus(Qt.TabFocusReason)
    }

    function open(row: int) {
        list.currentIndex = row
        AppModel.speciesID = results.idAt(row)
    }

    ScrollMotor {
        id: listMotor

        target: list
    }

    WheelScroll {
        motor: listMotor
    }

    TouchScroll {
        motor: listMotor
    }

    ListView {
        id: list

        anchors.fill: parent
        model: species.results
        focus: true
        activeFocusOnTab: count > 0
        currentIndex: -1
        interactive: false
        boundsBehavior: Flickable.StopAtBounds
        clip: !OMRender.snapshotMode
        spacing: 4
        topMargin: 4
        bottomMargin: 16
        highlightMoveDuration: 0
        keyNavigationEnabled: true
        T.ScrollBar.vertical: OMScrollBar {}
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Species")

        // A new list is entered at its open species, or else at its top.
        Connections {
            target: species.results

            function onModelReset() {
                list.currentIndex = -1
            }
        }

        onActiveFocusChanged: if (activeFocus) species.enter()
        Keys.onReturnPressed: species.open(currentIndex)
        Keys.onEnterPressed: species.open(currentIndex)
        Keys.onSpacePressed: species.open(currentIndex)
        Keys.onUpPressed: event => {
            if (currentIndex > 0)
                decrementCurrentIndex()
            else
                species.leftUpwards()
        }
        Keys.onPressed: event => {
            if (event.key === Qt.Key_Home)
                currentIndex = 0
            else if (event.key === Qt.Key_End)
                currentIndex = count - 1
            else if (event.key === Qt.Key_PageDown)
                currentIndex = Math.min(count - 1, currentIndex + 8)
            else if (event.key === Qt.Key_PageUp)
                currentIndex = Math.max(0, currentIndex - 8)
            else
                return
            event.accepted = true
        }

        delegate: SpeciesRow {
            width: list.width
            selected: speciesID === AppModel.speciesID
            focused: list.activeFocus && ListView.isCurrentItem
            onClicked: species.open(index)
        }
    }

    OMEmpty {
        anchors.top: parent.top
        anchors.topMargin: 24
        width: parent.width
        visible: species.results.count === 0
        symbol: "magnifyingglass"
        title: qsTr("No care sheet matches")
        message: qsTr("Try a shorter word, or clear the search.")
    }
}
