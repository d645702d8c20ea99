import QtQuick
import QtTest
import Ormiva.Bench
import Ormiva.Kit

Item {
    id: root

    width: 1300
    height: 900

    VLZoomHost {
        id: host

        width: 1200
        height: 800

        Rectangle {
            id: content

            anchors.fill: parent
        }
    }

    TestCase {
        name: "VLZoomHost"
        when: windowShown

        function init() {
            Bench.reset()
            host.width = 1200
            host.height = 800
        }

        function state() {
            return [host.logicalWidth, host.logicalHeight, host.scaledWidth, host.scaledHeight,
                    host.scrollsSideways, host.scrollsUpright]
        }

        function test_fillsTheWindowAtHundredPercent() {
            compare(state(), [1200, 800, 1200, 800, false, false])
            compare([content.width, content.height], [1200, 800])
        }

        function test_keepsTheLeastSizeAtTwoHundredPercent() {
            Bench.storeZoom(2)
            compare(state(), [960, 640, 1920, 1280, true, true])
            compare(Bench.place(content), Qt.rect(0, 0, 1920, 1280))
        }

        function test_givesMoreRoomWhenSmall() {
            Bench.storeZoom(0.85)
            fuzzyCompare(host.logicalWidth, 1200 / 0.85, 0.001)
            fuzzyCompare(host.logicalHeight, 800 / 0.85, 0.001)
            compare([host.scrollsSideways, host.scrollsUpright], [false, false])
        }

        function test_doesNotScrollForOnePoint() {
            host.width = 959
            compare([host.scrollsSideways, host.scrollsUpright], [false, false])
            host.width = 958
            compare([host.scrollsSideways, host.scrollsUpright], [true, false])
        }

        function test_readsAStoredValueOutsideTheLimitsClamped() {
            Bench.storeZoom(7)
            compare(host.zoom, 2)
        }

        function test_returnsToTheTopLeftAfterAnyChange() {
            Bench.storeZoom(2)
            host.contentX = 300
            host.contentY = 200
            Bench.storeZoom(1.75)
            compare([host.contentX, host.contentY], [0, 0])
            host.contentX = 300
            host.contentY = 200
            host.width = 1100
            compare([host.contentX, host.contentY], [0, 0])
            wait(0)
            compare([host.contentX, host.contentY], [0, 0])
        }

        function test_winsAgainstWhatMovesItLater() {
            Bench.storeZoom(2)
            const start = Date.now()
            host.contentX = 300
            host.contentY = 200
            tryVerify(() => host.contentX === 0 && host.contentY === 0) // the next turn
            // Moved again between the later looks, the last of them 1.6 seconds after the change.
            for (const moment of [160, 410, 910]) {
                tryVerify(() => Date.now() - start > moment)
                host.contentX = 300
                tryCompare(host, "contentX", 0)
            }
            tryVerify(() => Date.now() - start > 1700)
            wait(50)
            host.contentX = 300
            wait(300)
            compare(host.contentX, 300)
        }

        function test_leavesTheUserWhoScrolls() {
            Bench.storeZoom(2)
            wait(0)
            mouseWheel(host, 600, 400, 0, -120)
            const start = Date.now()
            tryVerify(() => Date.now() - start > 1700)
            compare(host.contentY, 72)
        }

        function test_scrollsByTheWheel() {
            Bench.storeZoom(2)
            wait(0)
            mouseWheel(host, 600, 400, 0, -120)
            compare([host.contentX, host.contentY], [0, 72])
            mouseWheel(host, 600, 400, 0, 240)
            compare([host.contentX, host.contentY], [0, 0])
        }
    }
}
