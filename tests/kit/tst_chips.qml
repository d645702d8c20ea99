import QtQuick
import QtTest
import Ormiva.Bench
import Ormiva.Kit

Item {
    id: root

    width: 600
    height: 400

    SourceChips {
        id: chips

        width: 300
    }

    TestCase {
        name: "SourceChips"
        when: windowShown

        function init() {
            Bench.reset()
            chips.keys = ["merck-a", "gone", "vca", "merck-b", "keepers"]
        }

        function chip(title) {
            return Bench.named(chips, "SourceChipButton", title)
        }

        function menuItems() {
            return Bench.all(root.Window.window.contentItem, "OMMenuItem")
        }

        function test_sourcesOfOneNameShareAChipAndUnknownKeysHaveNone() {
            compare(Bench.texts(chips, "SourceChipButton"), ["Merck Vet Manual", "VCA", "Society of Test Keepers"])
        }

        function test_withoutKnownSourcesNothingIsShown() {
            chips.keys = ["gone"]
            compare(chips.visible, false)
            chips.keys = []
            compare(chips.visible, false)
        }

        function test_tipListsTheSources() {
            compare(chip("VCA").chip.tip, "Gecko Care (checked 2026-05-03)")
            compare(chip("Merck Vet Manual").chip.tip,
                    "Housing of Reptiles (checked 2026-05-01)\nFeeding of Reptiles (checked 2026-05-02)")
        }

        function test_tipIsShownUnderThePointer() {
            mouseMove(chip("VCA"), 5, 5)
            tryVerify(() => Bench.named(root.Window.window.contentItem, "OMText", "Gecko Care (checked 2026-05-03)"), 3000)
            mouseMove(root, 500, 350)
            tryCompare(chip("VCA"), "hovered", false)
        }

        function test_aChipOfOneSourceOpensIt_data() {
            return [{tag: "mouse"}, {tag: "Space", key: Qt.Key_Space}, {tag: "Return", key: Qt.Key_Return}]
        }

        function test_aChipOfOneSourceOpensIt(data) {
            const button = chip("Society of Test Keepers")
            if (data.key) {
                button.forceActiveFocus(Qt.TabFocusReason)
                keyClick(data.key)
            } else {
                mouseClick(button)
            }
            compare(Bench.opened, ["https://example.org/keepers/a%201%2Fb"])
        }

        function test_aChipOfSeveralOpensAMenu() {
            mouseClick(chip("Merck Vet Manual"))
            tryVerify(() => menuItems().length === 2)
            compare(menuItems().map(item => item.text), ["Housing of Reptiles", "Feeding of Reptiles"])
            compare(Bench.opened, [])
            mouseClick(menuItems()[1])
            compare(Bench.opened, ["https://example.org/merck/feeding"])
            tryVerify(() => menuItems().length === 0)
        }

        function test_theMenuIsWorkedByKeys() {
            chip("Merck Vet Manual").forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Return)
            tryVerify(() => menuItems().length === 2)
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Return)
            compare(Bench.opened, ["https://example.org/merck/feeding"])
            tryVerify(() => menuItems().length === 0)
            verify(chip("Merck Vet Manual").activeFocus)
        }

        function test_theMenuIsClosedByEscape() {
            mouseClick(chip("Merck Vet Manual"))
            tryVerify(() => menuItems().length === 2)
            keyClick(Qt.Key_Escape)
            tryVerify(() => menuItems().length === 0)
            compare(Bench.opened, [])
        }

        function test_whatIsNoAddressStaysClosed() {
            chips.keys = ["nowhere"]
            mouseClick(chip("Paper Press"))
            compare(Bench.opened, [])
        }

        function test_aLongNameStaysInsideTheWidth() {
            chips.width = 120
            for (const button of Bench.all(chips, "SourceChipButton"))
                verify(button.width <= 120)
            chips.width = 300
        }

        function test_saysWhatItIs() {
            compare(Bench.accessibleName(chip("VCA")), "VCA")
            compare(Bench.accessibleRole(chip("VCA")), Accessible.Button)
            compare(Bench.accessibleRole(chip("Merck Vet Manual")), Accessible.ButtonMenu)
        }
    }
}
