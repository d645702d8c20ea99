import QtQuick
import Ormiva.Kit

// The ground of a row of a list.
Plate {
    property bool highlight: false
    property bool selected: false

    radius: 10
    fill: VLUI.at("white", selected ? 0.35 : highlight ? 0.13 : 0.05)
    rimWidth: 0.5
    rim: VLUI.at("white", selected ? 0.5 : highlight ? 0.28 : 0.14)
}
