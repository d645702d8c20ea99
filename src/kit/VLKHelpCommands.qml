import QtQuick
import QtQuick.Templates as T
import Ormiva.Kit

// The manual, topic by topic, and the maker's website.
OMMenu {
    id: menu

    title: qsTr("Help")
    zoomed: false

    OMMenuItem {
        action: T.Action {
            text: qsTr("%1 Help").arg(OMInfo.appName)
            shortcut: "Ctrl+?"
            onTriggered: VLKHelp.show()
        }
    }
    OMMenuSeparator {}

    Repeater {
        model: menu.wanted ? VLKHelp.topics : []

        OMMenuItem {
            required property helpTopic modelData

            text: modelData.title
            onTriggered: VLKHelp.show(modelData.id)
        }
    }

    OMMenuSeparator {}
    OMMenuItem {
        text: qsTr("Ventrel Website")
        onTriggered: Opener.open(VLKAbout.website)
    }
}
