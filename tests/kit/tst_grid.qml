import QtQuick
import QtTest
import Ormiva.Kit

Item {
    id: root

    width: 400
    height: 400

    component Box: Item {}

    OMGrid {
        id: grid

        width: 210
        spacing: 10

        Box { id: a; implicitHeight: 30 }
        Box { id: b; implicitHeight: 50 }
        Box { id: c; implicitHeight: 20 }
    }

    TestCase {
        name: "OMGrid"
        when: windowShown

        function place(item) {
            return [item.x, item.y, item.width, item.height]
        }

        function init() {
            grid.width = 210
            grid.columns = 2
            b.visible = true
            a.implicitHeight = 30
            tryCompare(grid, "implicitHeight", 80)
        }

        function test_columnsAreEqualAndRowsAsHighAsTheirTallest() {
            compare([place(a), place(b), place(c)], [[0, 0, 100, 50], [110, 0, 100, 50], [0, 60, 100, 20]])
            compare(grid.implicitHeight, 80)
        }

        function test_followsItsWidth() {
            grid.width = 410
            compare([place(a), place(b)], [[0, 0, 200, 50], [210, 0, 200, 50]])
        }

        function test_followsAChildThatGrows() {
            a.implicitHeight = 90
            tryCompare(grid, "implicitHeight", 120)
            compare(b.height, 90)
        }

        function test_leavesHiddenChildrenOut() {
            b.visible = false
            tryCompare(grid, "implicitHeight", 30)
            compare(place(c), [110, 0, 100, 30])
        }

        function test_takesOneColumn() {
            grid.columns = 1
            tryCompare(grid, "implicitHeight", 120)
            compare(place(c), [0, 100, 210, 20])
        }
    }
}
