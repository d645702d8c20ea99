import QtQuick
import Ormiva.Kit
import Ormiva.Screens

// A species in the list.
OMButton {
    id: row

    required property int index
    required property string speciesID
    required property string name
    required property string scientific
    required property string art
    required property var palette
    property bool selected: false
    property bool focused: false

    text: name
    implicitHeight: 56
    activeFocusOnTab: false
    Accessible.role: Accessible.ListItem
    Accessible.name: name + ", " + scientific
    Accessible.selectable: true
    Accessible.selected: selected

    contentItem: SpeciesLine {
        name: row.name
        scientific: row.scientific
        art: row.art
        palette: row.palette
        selected: row.selected
    }

    background: Item {
        OMRowBox {
            anchors.fill: parent
            anchors.leftMargin: 12
            anchors.rightMargin: 14
            selected: row.selected
            highlight: row.hovered

            FocusRing {
                shown: row.focused
                corner: 10
                reach: 0
            }
        }
    }
}
