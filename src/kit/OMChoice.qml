import QtQuick
import Ormiva.Art
import Ormiva.Kit

// A pop-up button: it shows the chosen entry, and opens the list of all.
PopUpButton {
    id: button

    required property ChoiceModel choices
    // Letters typed within that many milliseconds of each other lead to the entry that begins with them.
    property int typingPause: 1000
    readonly property alias typed: keys.letters
    readonly property ChoiceList list: opener.item as ChoiceList

    text: choices.title
    opened: list !== null
    implicitWidth: 260
    Accessible.role: Accessible.ComboBox

    onPressed: {
        if (list)
            list.close()
        else
            opener.active = true
    }
    onActiveFocusChanged: keys.letters = ""
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Down || event.key === Qt.Key_Up) {
            opener.active = true
            event.accepted = true
        } else if (keys.takes(event)) {
            choices.choose(choices.find(keys.letters, choices.current))
            event.accepted = true
        }
    }

    TypedLetters {
        id: keys

        pause: button.typingPause
    }

    SpeciesIcon {
        id: icon

        anchors.verticalCenter: parent.verticalCenter
        visible: art !== ""
        size: 20
        art: button.choices.art
        palette: button.choices.palette
    }
    OMText {
        anchors.left: icon.visible ? icon.right : parent.left
        anchors.leftMargin: icon.visible ? 8 : 0
        anchors.right: chevron.left
        anchors.rightMargin: 6
        anchors.verticalCenter: parent.verticalCenter
        text: button.text
        elide: Text.ElideRight
        Accessible.ignored: true
    }
    Symbol {
        id: chevron

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        name: "chevron.up.chevron.down"
        size: 15
        color: button.hovered ? VLUI.text : VLUI.dim
    }

    Loader {
        id: opener

        active: false
        sourceComponent: ChoiceList {
            parent: button
            choices: button.choices
            typing: keys
            name: button.controlName
            onClosed: {
                opener.active = false
                // Whoever went on with the keyboard is to see where it is.
                button.forceActiveFocus(byKeyboard ? Qt.TabFocusReason : Qt.PopupFocusReason)
            }
            Component.onCompleted: open()
        }
    }
}
