import QtQuick
import Ormiva.Kit

// A care text: its lines one under the other, those with a bullet as list rows. It can be selected and copied.
TextEdit {
    id: edit

    property alias careText: care.text
    property real size: 12.5

    readOnly: true
    selectByMouse: true
    activeFocusOnTab: false
    textFormat: TextEdit.RichText
    wrapMode: TextEdit.Wrap
    font.pointSize: size * VLUI.pointsPerPixel
    color: VLUI.text
    selectionColor: VLUI.accent
    selectedTextColor: VLUI.inkOn(VLUI.accent)
    Accessible.role: Accessible.StaticText
    Accessible.name: care.text

    // Not before: on its completion a TextEdit fills the document itself.
    Component.onCompleted: care.document = textDocument

    CareDocument {
        id: care

        size: edit.size
    }
}
