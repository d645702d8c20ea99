import QtQuick
import Ormiva.Kit

// A labelled row of a form. The label and the help are also what a screen reader says of the first control in it.
Column {
    id: field

    default property alias content: body.data
    property string label
    property string help

    readonly property var control: body.named(body)

    spacing: 5
    Component.onCompleted: {
        if (!control)
            return
        if (control.controlName === "")
            control.controlName = Qt.binding(() => field.label)
        if (control.controlHelp === "")
            control.controlHelp = Qt.binding(() => field.help)
    }

    OMText {
        width: parent.width
        visible: text !== ""
        text: field.label
        size: 11
        color: VLUI.dim
        wrapMode: Text.Wrap
        Accessible.ignored: field.control !== null

        TapHandler {
            enabled: field.control !== null
            onTapped: field.control.forceActiveFocus(Qt.MouseFocusReason)
        }
    }

    Column {
        id: body

        width: parent.width
        spacing: 8

        // The first control among the descendants of `item`.
        function named(item) {
            for (let i = 0; i < item.children.length; ++i) {
                const child = item.children[i]
                const found = "controlName" in child ? child : named(child)
                if (found)
                    return found
            }
            return null
        }
    }

    OMText {
        width: parent.width
        visible: text !== ""
        text: field.help
        size: 10.5
        color: VLUI.dim
        wrapMode: Text.Wrap
        lineHeight: 1.15
        Accessible.ignored: field.control !== null
    }
}
