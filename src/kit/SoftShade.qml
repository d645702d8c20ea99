import QtQuick
import Ormiva.Kit

// The soft shadow under a panel; fills the panel's place and reaches beyond it.
BorderImage {
    property real drop: 5

    anchors.fill: parent
    anchors.margins: -20
    anchors.topMargin: -20 + drop
    anchors.bottomMargin: -20 - drop
    border { left: 36; top: 36; right: 36; bottom: 36 }
    source: VLUI.shadowSource
}
