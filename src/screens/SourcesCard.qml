import QtQuick
import Ormiva.Kit
import Ormiva.Screens

// All sources of a care sheet.
OMCard {
    id: card

    required property CareSheet sheet

    title: qsTr("Sources for this care sheet")
    symbol: "text.book.closed.fill"

    OMText {
        width: parent.width
        text: qsTr("Written in our own words from these pages. Medicines are never dosed in this app — your vet will dose.")
        size: 12.5
        wrapMode: Text.Wrap
        lineHeight: 1.15
    }

    Column {
        width: parent.width
        spacing: 2

        Repeater {
            model: card.sheet.sources

            SourceRow {
                required property sourceLine modelData

                width: parent.width
                source: modelData
            }
        }
    }
}
