import QtQuick
import Ormiva.Kit

OMCard {
    title: "Pickers"
    symbol: "calendar"

    FlowLayout {
        width: parent.width
        spacing: 18

        OMField {
            width: 260
            label: "Day"

            OMDayPicker {}
        }
        OMField {
            width: 320
            label: "A day that may be left open"

            OMOptionalDayPicker {
                width: parent.width
                label: "Known"
            }
        }
        OMField {
            width: 260
            label: "Species"

            SpeciesPicker {
                width: parent.width
                species: "bearded-dragon"
            }
        }
        OMField {
            width: 260
            label: "Species, or none"

            SpeciesPicker {
                width: parent.width
                allowNone: true
                noneTitle: "Any species"
            }
        }
        OMField {
            width: 260
            label: "Pet"

            PetPicker {
                width: parent.width
                allowNone: true
                noneTitle: "All pets"
            }
        }
        OMField {
            width: 260
            label: "Disabled pet"

            PetPicker {
                width: parent.width
                allowNone: true
                enabled: false
            }
        }
    }
}
