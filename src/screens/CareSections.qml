import QtQuick
import Ormiva.Kit
import Ormiva.Screens

// The sections of a care sheet, each a heading over a grid of cards.
Column {
    id: sections

    required property CareSheet sheet

    spacing: 22

    Repeater {
        model: sections.sheet.sections

        Column {
            id: section

            required property sheetSection modelData

            width: parent.width
            spacing: 10

            OMText {
                topPadding: 4
                text: section.modelData.title
                size: 11.5
                font.weight: Font.DemiBold
                font.letterSpacing: 1.6
                color: VLUI.dim
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }

            OMGrid {
                width: parent.width
                spacing: 16

                Repeater {
                    model: section.modelData.cards

                    FieldCard {
                        required property int modelData

                        card: sections.sheet.cards[modelData]
                    }
                }
            }
        }
    }
}
