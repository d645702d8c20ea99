import QtQuick
import Ormiva.Kit

// A small caption.
OMText {
    size: 10
    color: VLUI.dim
}
