import QtQuick
import Ormiva.Kit

OMCard {
    title: "Words"
    symbol: "text.book.closed.fill"

    OMHeader {
        width: parent.width
        title: "A heading"
        subtitle: "And what stands under it."
        symbol: "sun.horizon.fill"
    }
    FlowLayout {
        width: parent.width
        spacing: 10

        OMTag {
            text: "A tag"
        }
        OMTag {
            text: "Emergency"
            tint: VLUI.emergency
        }
        OMTag {
            text: "Soon"
            tint: VLUI.soon
        }
        OMTag {
            text: "Monitor, compact"
            tint: VLUI.monitor
            compact: true
        }
        VLAnodizedPill {
            text: "A pill"
        }
        VLAnodizedPill {
            text: "Emergency"
            color: VLUI.emergency
        }
        VLAnodizedPill {
            text: "Soon"
            color: VLUI.soon
        }
        VLAnodizedPill {
            text: "Monitor"
            color: VLUI.monitor
        }
        VLCaption {
            text: "A caption"
        }
    }
    CareText {
        width: parent.width
        careText: "A care text with a row:\n• that hangs behind its bullet, however long it may be, and that wraps when it is longer than the card is wide, as this one is meant to be"
    }
    OMEmpty {
        width: parent.width
        symbol: "pawprint.fill"
        title: "Nothing here"
        message: "And what can be done about it."
    }
    NotAVetBanner {
        width: parent.width
    }
    NotAVetBanner {
        width: parent.width
        compact: true
    }
}
