import QtQuick
import Ormiva.Kit

OMCard {
    title: "Fields"
    symbol: "list.clipboard.fill"

    FlowLayout {
        width: parent.width
        spacing: 18

        VLSearchField {
            prompt: "Search field"
        }
        VLSearchField {
            prompt: "Search field with text"
            text: "stuck shed"
        }
        OMField {
            width: 260
            label: "Text field"
            help: "The help stands under the control."

            OMTextField {
                width: parent.width
                placeholder: "A placeholder"
            }
        }
        OMField {
            width: 260
            label: "Text field with text"

            OMTextField {
                width: parent.width
                text: "A name that is much too long for the field that it stands in"
            }
        }
        OMField {
            width: 260
            label: "Disabled text field"

            OMTextField {
                width: parent.width
                text: "Disabled"
                enabled: false
            }
        }
        OMField {
            width: 260
            label: "Text area"

            OMTextArea {
                width: parent.width
                placeholder: "Several lines"
            }
        }
        OMField {
            width: 260
            label: "Text area with text"

            OMTextArea {
                width: parent.width
                text: "One line.\nAnother line, which is longer than the field is wide and wraps.\nA third.\nA fourth that has to be scrolled to."
            }
        }
        OMToggle {
            title: "Off"
        }
        OMToggle {
            title: "On"
            checked: true
        }
        OMToggle {
            title: "Disabled, on"
            checked: true
            enabled: false
        }
    }
}
