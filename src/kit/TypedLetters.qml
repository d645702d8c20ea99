import QtQuick

// The letters that are typed one quickly after the other to find an entry of a list.
QtObject {
    id: typed

    property string letters
    property int pause: 1000 // milliseconds

    // Adds the letter of a key event; false when it has none.
    function takes(event): bool {
        const plain = (event.modifiers & ~(Qt.ShiftModifier | Qt.KeypadModifier)) === 0
        if (!plain || event.text.trim() === "" || event.text < " " || event.text === "\x7f")
            return false
        letters += event.text
        rest.restart()
        return true
    }

    readonly property Timer rest: Timer {
        interval: typed.pause
        onTriggered: typed.letters = ""
    }
}
