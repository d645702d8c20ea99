import QtQuick
import Ormiva.Kit

OMCard {
    title: "Buttons"
    symbol: "square"

    FlowLayout {
        width: parent.width
        spacing: 12

        VLChromeButton {
            title: "Plain"
        }
        VLChromeButton {
            title: "With a symbol"
            symbol: "stethoscope"
            tip: "What it does"
        }
        VLChromeButton {
            title: "Prominent"
            prominent: true
        }
        VLChromeButton {
            title: "Compact"
            compact: true
        }
        VLChromeButton {
            title: "Compact, prominent"
            compact: true
            prominent: true
        }
        VLChromeButton {
            title: "Destructive"
            prominent: true
            tint: VLUI.emergency
        }
        OMAddButton {
            title: "Add"
        }
        OMAddButton {
            title: "Add, compact"
            compact: true
        }
        LinkButton {
            text: "A link"
            url: "https://example.org"
        }
    }
    FlowLayout {
        width: parent.width
        spacing: 12

        VLCaption {
            text: "Pressed"
        }
        VLChromeButton {
            title: "Plain, pressed"
            down: true
            activeFocusOnTab: false
        }
        VLChromeButton {
            title: "Prominent, pressed"
            prominent: true
            down: true
            activeFocusOnTab: false
        }
        VLCaption {
            text: "Disabled"
        }
        VLChromeButton {
            title: "Plain, disabled"
            enabled: false
        }
        VLChromeButton {
            title: "Prominent, disabled"
            prominent: true
            enabled: false
        }
        OMAddButton {
            title: "Add, disabled"
            enabled: false
        }
    }
}
