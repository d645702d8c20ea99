import QtQuick
import QtQuick.Templates as T
import Ormiva.Kit

// A field for a line of text.
T.TextField {
    id: field

    property alias placeholder: field.placeholderText
    // What a screen reader calls the field, and what it adds.
    property string controlName
    property string controlHelp

    implicitWidth: 260
    implicitHeight: Math.ceil(contentHeight) + topPadding + bottomPadding
    padding: 7
    leftPadding: 10
    rightPadding: 10
    verticalAlignment: TextInput.AlignVCenter
    activeFocusOnTab: true
    selectByMouse: true
    hoverEnabled: true
    clip: true
    opacity: enabled ? 1 : 0.4
    font.family: VLUI.fontFamily // The platform has a font of its own for fields.
    font.pointSize: 13 * VLUI.pointsPerPixel
    color: VLUI.text
    selectionColor: VLUI.accent
    selectedTextColor: VLUI.inkOn(VLUI.accent)
    Accessible.role: Accessible.EditableText
    Accessible.name: controlName === "" ? placeholderText : controlName
    Accessible.description: controlHelp === "" && controlName !== "" ? placeholderText : controlHelp

    // A text that is given shows its beginning.
    onTextChanged: if (!activeFocus) cursorPosition = 0

    background: Item {
        FieldPlate {
            anchors.fill: parent
            hovered: field.hovered
            focused: field.activeFocus
        }
    }

    OMText {
        x: field.leftPadding
        y: field.topPadding
        width: field.width - field.leftPadding - field.rightPadding
        height: field.height - field.topPadding - field.bottomPadding
        visible: field.text === "" && field.preeditText === ""
        text: field.placeholderText
        color: VLUI.dim
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
}
