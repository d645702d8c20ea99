import QtQuick
import Ormiva.Kit

// A topic of the manual: headings, bullets and paragraphs. It can be selected and copied.
TextEdit {
    id: edit

    property alias body: help.body

    readOnly: true
    selectByMouse: true
    activeFocusOnTab: false
    textFormat: TextEdit.RichText
    wrapMode: TextEdit.Wrap
    font.pointSize: 13.5 * VLUI.pointsPerPixel
    color: VLUI.text
    selectionColor: VLUI.accent
    selectedTextColor: VLUI.inkOn(VLUI.accent)
    Accessible.role: Accessible.StaticText
    Accessible.name: help.body

    // Not before: on its completion a TextEdit fills the document itself.
    Component.onCompleted: help.document = textDocument

    HelpDocument {
        id: help

        pointsPerPixel: VLUI.pointsPerPixel
    }
}
