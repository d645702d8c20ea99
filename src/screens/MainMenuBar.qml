import QtQuick
import Ormiva.Kit
import Ormiva.Screens

// The menus of the main window.
OMMenuBar {
    VLKAboutCommands {}
    FileMenu {}
    VLZoomCommands {}
    GoMenu {}
    VLKThemeCommands {}
    VLKHelpCommands {}
}
