import QtQuick
import Ormiva.Kit

// One chip of SourceChips.
OMButton {
    id: button

    required property sourceChip chip
    property real maximumWidth: 400

    readonly property bool several: chip.sources.length > 1

    text: chip.title
    implicitWidth: Math.min(maximumWidth, implicitContentWidth + 2 * horizontalPadding)
    implicitHeight: 20
    horizontalPadding: 8
    Accessible.role: several ? Accessible.ButtonMenu : Accessible.Button
    Accessible.description: chip.tip

    onClicked: {
        if (several)
            menu.active = true
        else
            Opener.open(chip.sources[0].url)
    }

    contentItem: OMText {
        text: button.text
        size: 10.5
        font.weight: Font.Medium
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
    }

    background: Plate {
        radius: height / 2
        fill: VLUI.at(VLUI.mix(VLUI.accent, "white", 0.2), button.down ? 0.5 : button.hovered ? 0.42 : 0.26)
        rimWidth: 0.5
        rim: VLUI.at("white", button.hovered ? 0.5 : 0.28)

        FocusRing {
            shown: button.visualFocus
            corner: parent.radius
            reach: 2
        }
    }

    OMTipped {
        text: button.chip.tip
        shown: (button.hovered || button.visualFocus) && !menu.active
    }

    Loader {
        id: menu

        active: false
        sourceComponent: OMMenu {
            parent: button
            y: button.height + 4
            onClosed: {
                menu.active = false
                button.forceActiveFocus(Qt.PopupFocusReason)
            }
            Component.onCompleted: open()

            Repeater {
                model: button.chip.sources

                OMMenuItem {
                    required property sourceRef modelData

                    text: modelData.title
                    onTriggered: Opener.open(modelData.url)
                }
            }
        }
    }
}
