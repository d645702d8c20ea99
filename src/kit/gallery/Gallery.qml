import QtQuick
import Ormiva.Kit

// Every component of the kit in its states, for whoever works on one.
OMScroll {
    name: "The gallery"

    GalleryButtons {
        width: parent.width
    }
    GalleryFields {
        width: parent.width
    }
    GalleryPickers {
        width: parent.width
    }
    GalleryWords {
        width: parent.width
    }
    GalleryPanels {
        width: parent.width
    }
    GalleryEditor {
        width: parent.width
    }
}
