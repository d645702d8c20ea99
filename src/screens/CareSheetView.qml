import QtQuick
import Ormiva.Kit
import Ormiva.Screens

// The care sheet of a species in one scrolling column, or what stands there while none is chosen.
Item {
    id: view

    property string speciesID
    // What the list is searched for.
    property string highlight
    readonly property alias sheet: sheet

    implicitHeight: sheet.found ? loader.implicitHeight : nothing.implicitHeight

    CareSheet {
        id: sheet

        speciesID: view.speciesID
        onChanged: if (loader.item) loader.item.contentY = 0
    }

    OMEmpty {
        id: nothing

        anchors.centerIn: parent
        width: parent.width
        visible: !sheet.found
        symbol: "books.vertical.fill"
        title: qsTr("Choose a species")
        message: qsTr("Pick an animal on the left to read its care sheet.")
    }

    Loader {
        id: loader

        anchors.fill: parent
        active: sheet.found
        sourceComponent: page
    }

    Component {
        id: page

        OMScroll {
            name: sheet.species.name
            padding: 28

            CareSheetHeader {
                width: parent.width
                sheet: view.sheet
            }

            CareText {
                width: parent.width
                careText: sheet.species.summary
                size: 14
            }

            Item {
                width: parent.width
                height: limited.implicitHeight
                visible: limited.careText !== ""

                Symbol {
                    y: 1
                    name: "info.circle.fill"
                    size: 16
                    color: VLUI.warmLight
                }
                CareText {
                    id: limited

                    x: 24
                    width: parent.width - x
                    careText: sheet.limited
                    size: 13
                    color: VLUI.warmLight
                }
            }

            FieldCard {
                width: parent.width
                card: sheet.redFlags
                tintStrength: 0.56
            }

            CareSections {
                width: parent.width
                sheet: view.sheet
            }

            NotAVetBanner {
                width: parent.width
                compact: true
            }

            SourcesCard {
                width: parent.width
                sheet: view.sheet
            }
        }
    }
}
