import QtQuick
import Ormiva.Kit

VLPanel {
    padding: 22
    implicitHeight: frame.implicitHeight + 44

    OMEditorFrame {
        id: frame

        width: Math.min(560, parent.width)
        title: "An editor"
        symbol: "scalemass.fill"
        error: "The weight must be more than zero."

        OMField {
            width: parent.width
            label: "Weight"
            help: "In grams"

            OMTextField {
                width: parent.width
                text: "0"
            }
        }
    }
}
