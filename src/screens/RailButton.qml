import QtQuick
import Ormiva.Kit
import Ormiva.Screens

// A button of the side rail, selected while its screen is up.
OMButton {
    id: button

    required property screenInfo screen

    readonly property bool selected: AppModel.screen === screen.id

    text: screen.title
    implicitHeight: 36
    Accessible.role: Accessible.PageTab
    Accessible.selected: selected
    Accessible.selectable: true

    onClicked: AppModel.screen = screen.id

    contentItem: IconAndTitle {
        symbol: button.screen.symbol
        title: button.text
        selected: button.selected
    }

    background: Plate {
        radius: 9
        fill: button.selected ? VLUI.accent : VLUI.at("white", button.down ? 0.16 : button.hovered ? 0.09 : 0)

        FocusRing {
            shown: button.visualFocus
            corner: 9
            reach: 1
        }
    }
}
