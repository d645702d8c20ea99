import QtQuick
import QtTest
import Ormiva.Kit

Item {
    id: root

    width: 400
    height: 400

    FlowLayout {
        id: flow

        width: 100
        spacing: 10

        Repeater {
            id: boxes

            model: [[40, 10], [50, 20], [30, 10], [100, 5], [1, 7]]

            Item {
                required property var modelData

                width: modelData[0]
                height: modelData[1]
            }
        }
    }

    TestCase {
        name: "FlowLayout"
        when: windowShown

        // The rows are made anew shortly after a change of the width.
        function comparePlaces(expected) {
            tryVerify(() => JSON.stringify(places()) === JSON.stringify(expected), 3000, JSON.stringify(places()))
        }

        function places() {
            const found = []
            for (let i = 0; i < boxes.count; ++i)
                found.push([boxes.itemAt(i).x, boxes.itemAt(i).y])
            return found
        }

        function test_wrapsWhenTheNextWouldPassTheWidth() {
            flow.width = 100
            // 40 + 10 + 50 just fits; a row is as high as its tallest.
            comparePlaces([[0, 0], [50, 0], [0, 30], [0, 50], [0, 65]])
            compare(flow.implicitHeight, 72)
        }

        function test_wrapsEarlierInANarrowerPlace() {
            flow.width = 99
            comparePlaces([[0, 0], [0, 20], [60, 20], [0, 50], [0, 65]])
        }
    }
}
