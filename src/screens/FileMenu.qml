import QtQuick
import QtQuick.Templates as T
import Ormiva.Kit
import Ormiva.Screens

// What is done with pets, records and documents.
OMMenu {
    title: qsTr("File")
    zoomed: false

    OMMenuItem {
        action: T.Action {
            text: qsTr("New Pet…")
            shortcut: "Ctrl+N"
            enabled: Commands.hasStore
            onTriggered: Commands.newPet()
        }
    }
    OMMenuItem {
        action: T.Action {
            text: qsTr("Log a Weight…")
            shortcut: "Ctrl+Shift+W"
            enabled: Commands.hasStore
            onTriggered: Commands.logWeight()
        }
    }
    OMMenuItem {
        text: qsTr("Log a Meal…")
        enabled: Commands.hasStore
        onTriggered: Commands.logMeal()
    }
    OMMenuItem {
        text: qsTr("New Reminder…")
        enabled: Commands.hasStore
        onTriggered: Commands.newReminder()
    }
    OMMenuSeparator {}
    OMMenuItem {
        action: T.Action {
            text: qsTr("Export Care Sheet (PDF)…")
            shortcut: "Ctrl+Shift+E"
            onTriggered: Commands.exportCareSheet()
        }
    }
    OMMenuItem {
        text: qsTr("Export Records for the Vet (PDF)…")
        onTriggered: Commands.exportRecords()
    }
    OMMenuSeparator {}
    OMMenuItem {
        action: T.Action {
            text: qsTr("Back Up Now…")
            shortcut: "Ctrl+Shift+B"
            enabled: Commands.hasStore
            onTriggered: Commands.backUpNow()
        }
    }
    OMMenuSeparator {}
    OMMenuItem {
        action: T.Action {
            text: qsTr("Quit")
            shortcut: "Ctrl+Q"
            onTriggered: Qt.quit()
        }
    }
}
