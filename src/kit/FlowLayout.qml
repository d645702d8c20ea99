import QtQuick
import Ormiva.Kit

// A wrapping row: children at their ideal sizes, a new row when the next would pass the width.
Flow {
    spacing: 6
}
