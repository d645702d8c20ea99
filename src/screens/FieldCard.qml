import QtQuick
import Ormiva.Kit
import Ormiva.Screens

// One field of a care sheet: its text and its sources.
OMCard {
    id: field

    required property careCard card

    title: card.title
    symbol: card.symbol
    tint: card.tint

    CareText {
        width: parent.width
        careText: field.card.text
    }
    SourceChips {
        width: parent.width
        keys: field.card.keys
    }
}
