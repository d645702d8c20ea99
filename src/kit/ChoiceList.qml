import QtQuick
import QtQuick.Templates as T
import Ormiva.Kit

// The open list of a pop-up button. It makes only the entries that are seen.
DropDown {
    id: list

    required property ChoiceModel choices
    required property TypedLetters typing
    property string name
    property alias view: view
    property bool byKeyboard: false

    readonly property real rowHeight: 30

    width: Math.min(Math.max(parent ? parent.width : 0, Math.min(460, choices.widest(sample.font) + 76)),
                    (ground ? ground.width : 460) / scale - 2 * margins)
    wantedHeight: Math.min(380, choices.count * rowHeight + topPadding + bottomPadding)
    leastHeight: Math.min(wantedHeight, 5.5 * rowHeight)
    onOpened: view.showCurrent()
    onHeightChanged: view.showCurrent()

    function choose(row: int) {
        choices.choose(row)
        close()
    }

    ListView {
        id: view

        // Where the pointer was last, in the window. What scrolls under a resting pointer is not pointed at.
        property point pointer: Qt.point(-1, -1)

        anchors.fill: parent
        focus: true
        clip: true
        model: list.choices
        interactive: false
        keyNavigationEnabled: true
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        reuseItems: true
        currentIndex: list.choices.current
        T.ScrollBar.vertical: OMScrollBar {}
        Accessible.role: Accessible.List
        Accessible.name: list.name

        function showCurrent() {
            currentIndex = list.choices.current
            positionViewAtIndex(currentIndex, ListView.Center)
        }
        function moveBy(rows: int) {
            currentIndex = Math.max(0, Math.min(count - 1, currentIndex + rows))
        }
        function pointAt(row: int, place: point) {
            if (pointer.x >= 0 && (pointer.x !== place.x || pointer.y !== place.y))
                currentIndex = row
            pointer = place
        }

        Keys.onPressed: event => {
            const page = Math.max(1, Math.floor(height / list.rowHeight) - 1)
            event.accepted = true
            list.byKeyboard = true
            switch (event.key) {
            case Qt.Key_Home:
                currentIndex = 0
                break
            case Qt.Key_End:
                currentIndex = count - 1
                break
            case Qt.Key_PageUp:
                moveBy(-page)
                break
            case Qt.Key_PageDown:
                moveBy(page)
                break
            case Qt.Key_Return:
            case Qt.Key_Enter:
            case Qt.Key_Space:
                list.choose(currentIndex)
                break
            case Qt.Key_Escape:
            case Qt.Key_Tab:
            case Qt.Key_Backtab:
                list.close()
                break
            default:
                event.accepted = false
                if (list.typing.takes(event)) {
                    const row = list.choices.find(list.typing.letters, currentIndex)
                    if (row >= 0)
                        currentIndex = row
                    event.accepted = true
                }
            }
        }

        Connections {
            target: list.choices

            function onChoicesChanged() {
                view.showCurrent()
            }
        }
        ScrollMotor {
            id: motor

            target: view
        }
        WheelScroll {
            motor: motor
            onWheel: event => event.accepted = true // At its end too: what lies below stays where it is.
        }
        TouchScroll {
            motor: motor
        }
        OMText {
            id: sample

            visible: false
        }

        delegate: ChoiceRow {
            width: view.width
            height: list.rowHeight
            chosen: index === list.choices.current
            highlighted: index === view.currentIndex
            onPressed: list.choose(index)
            onPointed: place => view.pointAt(index, place)
        }
    }
}
