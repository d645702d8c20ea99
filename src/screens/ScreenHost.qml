import QtQuick
import Ormiva.Kit
import Ormiva.Screens

// Shows the screen that is up, and nothing else.
Loader {
    id: host

    sourceComponent: AppModel.screen === "library" ? library : coming

    Component {
        id: library

        LibraryView {}
    }
    Component {
        id: coming

        ComingPage {
            screen: Screens.named(AppModel.screen)
        }
    }
}
