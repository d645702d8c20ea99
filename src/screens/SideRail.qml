import QtQuick
import Ormiva.Kit
import Ormiva.Screens

// The way to every screen.
Rectangle {
    id: rail

    implicitHeight: ways.y + ways.implicitHeight + 22
    gradient: Gradient {
        GradientStop { position: 0; color: VLUI.at(VLUI.panelTop, 0.85) }
        GradientStop { position: 1; color: VLUI.at(VLUI.panelBottom, 0.9) }
    }

    Rectangle {
        anchors.right: parent.right
        width: 1
        height: parent.height
        color: VLUI.at("white", 0.12)
    }

    Row {
        id: heading

        x: 20
        y: 22
        spacing: 11

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: "pawprint.fill"
            size: 26
            color: VLUI.leaf
        }
        Column {
            spacing: 1

            OMText {
                text: OMInfo.appName
                size: 17
                font.weight: Font.Bold
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            OMText {
                text: OMInfo.creditLine
                size: 11
                color: VLUI.dim
            }
        }
    }

    Column {
        id: ways

        anchors.top: heading.bottom
        anchors.topMargin: 16
        x: 12
        width: parent.width - 24

        Repeater {
            model: Screens.groups

            Column {
                id: group

                required property railGroup modelData

                width: parent.width
                spacing: 2
                topPadding: 12

                OMText {
                    x: 10
                    visible: text !== ""
                    bottomPadding: 4
                    text: group.modelData.name
                    size: 11
                    font.weight: Font.DemiBold
                    color: VLUI.dim
                }

                Repeater {
                    model: group.modelData.screens

                    RailButton {
                        required property screenInfo modelData

                        width: group.width
                        screen: modelData
                    }
                }
            }
        }
    }
}
