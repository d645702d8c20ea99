import QtQuick
import Ormiva.Kit

Column {
    id: panels

    spacing: 18

    Repeater {
        model: [
            {title: "A card in the color of emergencies", tint: VLUI.emergency},
            {title: "A card in the color of what is soon", tint: VLUI.soon},
            {title: "A card in the color of what can wait", tint: VLUI.monitor}
        ]

        OMCard {
            required property var modelData

            width: panels.width
            title: modelData.title
            symbol: "exclamationmark.triangle.fill"
            tint: modelData.tint

            OMText {
                text: "With some text."
            }
        }
    }

    VLPanel {
        width: panels.width
        height: 70

        OMText {
            anchors.centerIn: parent
            text: "A panel of the kit"
        }
    }

    Column {
        width: panels.width
        spacing: 6

        OMRowBox {
            width: parent.width
            height: 40

            OMText {
                x: 14
                anchors.verticalCenter: parent.verticalCenter
                text: "A row"
            }
        }
        OMRowBox {
            width: parent.width
            height: 40
            highlight: true

            OMText {
                x: 14
                anchors.verticalCenter: parent.verticalCenter
                text: "A row under the pointer"
            }
        }
        OMRowBox {
            width: parent.width
            height: 40
            selected: true

            OMText {
                x: 14
                anchors.verticalCenter: parent.verticalCenter
                text: "A selected row"
            }
        }
    }

    VLWindowBackground {
        width: panels.width
        height: 120
        clip: true

        OMText {
            anchors.centerIn: parent
            text: "The ground of the kit's own windows"
        }
    }
}
