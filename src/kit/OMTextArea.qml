import QtQuick
import QtQuick.Templates as T
import Ormiva.Kit

// A field for several lines. Text that is higher than the field scrolls inside it, and Tab leaves it.
FocusScope {
    id: field

    property alias text: area.text
    property alias placeholder: area.placeholderText
    property alias area: area
    property alias contentY: flick.contentY
    property alias motor: motor
    // What a screen reader calls the field, and what it adds.
    property string controlName
    property string controlHelp

    implicitWidth: 260
    implicitHeight: 70
    opacity: enabled ? 1 : 0.4

    FieldPlate {
        anchors.fill: parent
        hovered: hover.hovered
        focused: area.activeFocus
    }

    HoverHandler {
        id: hover
    }

    ScrollMotor {
        id: motor

        target: flick
    }

    WheelScroll {
        motor: field.motor
    }

    Flickable {
        id: flick

        anchors.fill: parent
        anchors.margins: 1
        interactive: false
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        T.ScrollBar.vertical: OMScrollBar {}

        T.TextArea.flickable: T.TextArea {
            id: area

            implicitWidth: 100
            implicitHeight: contentHeight + topPadding + bottomPadding
            padding: 5 // With the margin of one around, six.
            leftPadding: 9
            rightPadding: 12
            focus: true
            activeFocusOnTab: true
            selectByMouse: true
            textFormat: TextEdit.PlainText
            wrapMode: TextEdit.Wrap
            font.family: VLUI.fontFamily // The platform has a font of its own for fields.
            font.pointSize: 13 * VLUI.pointsPerPixel
            color: VLUI.text
            selectionColor: VLUI.accent
            selectedTextColor: VLUI.inkOn(VLUI.accent)
            Accessible.role: Accessible.EditableText
            Accessible.multiLine: true
            Accessible.name: field.controlName === "" ? placeholderText : field.controlName
            Accessible.description: field.controlHelp === "" && field.controlName !== "" ? placeholderText : field.controlHelp

            Keys.priority: Keys.BeforeItem
            Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
            Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

            OMText {
                x: area.leftPadding
                y: area.topPadding
                width: area.width - area.leftPadding - area.rightPadding
                visible: area.text === "" && area.preeditText === ""
                text: area.placeholderText
                color: VLUI.dim
                wrapMode: Text.Wrap
                elide: Text.ElideRight
                maximumLineCount: 3
                Accessible.ignored: true
            }
        }
    }
}
