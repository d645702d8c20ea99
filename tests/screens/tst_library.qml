import QtQuick
import QtTest
import Ormiva.Bench
import Ormiva.Kit
import Ormiva.Screens

Item {
    id: root

    width: 1000
    height: 700

    Loader {
        id: loader

        anchors.fill: parent
        focus: true
        sourceComponent: LibraryView {}
    }

    TestCase {
        name: "Library"
        when: windowShown

        function init() {
            Bench.reset()
            loader.active = false
            loader.active = true
            mouseClick(search())
            tryVerify(() => rows().length === 3)
        }

        function search() { return Bench.all(loader.item, "VLSearchField")[0] }
        function rows() { return Bench.texts(loader.item, "SpeciesRow") }
        function row(name) { return Bench.named(loader.item, "SpeciesRow", name) }
        function chip(title) { return Bench.named(loader.item, "FilterChip", title) }
        function shows(text) { return Bench.named(loader.item, "OMText", text) !== null }
        function empties() {
            return Bench.all(loader.item, "OMEmpty").map(item => [item.symbol, item.title, item.message])
        }
        function type(text) {
            for (const letter of text)
                keyClick(letter)
        }
        readonly property var nothingMatches: ["magnifyingglass", "No care sheet matches", "Try a shorter word, or clear the search."]
        readonly property var nothingChosen: ["books.vertical.fill", "Choose a species", "Pick an animal on the left to read its care sheet."]

        function test_listsAllSpeciesInLibraryOrder() {
            compare(rows().length, 3)
            compare(rows().slice(0, 2), ["Test Rabbit", "Test Gecko"])
            verify(rows()[2].startsWith("A Hermit Crab"))
            verify(shows("3 species"))
            verify(shows("Gecko probatus"))
            compare(empties(), [nothingChosen])
            compare(search().prompt, "Search care sheets (e.g. UVB, calcium, shed)")
        }

        function test_chipsAreAllAndTheGroupsInOrder() {
            compare(Bench.texts(loader.item, "FilterChip"),
                    ["All", "Mammals", "Reptiles", "Amphibians", "Birds", "Invertebrates"])
            compare(Bench.all(loader.item, "FilterChip").filter(item => item.selected).map(item => item.text), ["All"])
        }

        function test_searchReactsAtEveryKeystroke() {
            type("uv")
            verify(shows("2 matches"))
            type("b")
            tryVerify(() => rows().length === 2)
            compare(rows().sort(), ["Test Gecko", "Test Rabbit"])
            verify(shows("2 matches"))
            search().text = "calcium"
            tryVerify(() => rows().length === 1)
            compare(rows(), ["Test Gecko"])
            verify(shows("1 match"))
            search().text = "zzzz"
            compare(rows(), [])
            verify(shows("0 matches"))
            compare(empties(), [nothingMatches, nothingChosen])
        }

        function test_chipNarrowsWithoutTouchingTheQuery() {
            search().text = "uvb"
            mouseClick(chip("Reptiles"))
            tryVerify(() => rows().length === 1)
            compare(rows(), ["Test Gecko"])
            compare([search().text, chip("Reptiles").selected, chip("All").selected], ["uvb", true, false])
            mouseClick(chip("All"))
            tryVerify(() => rows().length === 2)
            compare(search().text, "uvb")
        }

        function test_aGroupWithoutSpeciesCountsNone() {
            mouseClick(chip("Amphibians"))
            verify(shows("0 species"))
            compare(empties(), [nothingMatches, nothingChosen])
        }

        function test_sheetStaysWhenTheFilterHidesItsRow() {
            mouseClick(row("Test Gecko"))
            search().text = "uvb"
            mouseClick(chip("Amphibians"))
            verify(shows("0 matches"))
            compare(empties(), [nothingMatches])
            compare(AppModel.speciesID, "test-gecko")
            compare(Bench.texts(Bench.all(loader.item, "CareSheetHeader")[0], "OMText")[0], "Test Gecko")
        }

        function test_aClickOpensTheSheetAndSelectsTheRow() {
            mouseClick(row("Test Rabbit"))
            compare(AppModel.speciesID, "test-rabbit")
            compare(Bench.all(loader.item, "SpeciesRow").filter(item => item.selected).map(item => item.text), ["Test Rabbit"])
            compare(empties(), [])
        }

        function test_anUnknownSpeciesIsNoSpecies() {
            AppModel.speciesID = "no-such-animal"
            compare(empties(), [nothingChosen])
            AppModel.speciesID = "test-gecko"
            compare(empties(), [])
        }

        function test_isWorkedByKeysAlone() {
            mouseClick(row("Test Rabbit"))
            keyClick(Qt.Key_F, Qt.ControlModifier)
            verify(search().input.activeFocus)
            type("gecko")
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Return)
            compare(AppModel.speciesID, "test-gecko")
            keyClick(Qt.Key_Up)
            verify(search().input.activeFocus)
        }

        function test_arrowsMoveInTheListAndSpaceOpens() {
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Up)
            keyClick(Qt.Key_Space)
            compare(AppModel.speciesID, "test-gecko")
            keyClick(Qt.Key_End)
            keyClick(Qt.Key_Space)
            compare(AppModel.speciesID, "test-crab")
            keyClick(Qt.Key_Home)
            keyClick(Qt.Key_Space)
            compare(AppModel.speciesID, "test-rabbit")
        }

        function test_aSearchAfterTheKeyboardWasInTheListBeginsAtTheTop() {
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_End)
            search().text = "uvb"
            search().input.forceActiveFocus()
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Return)
            compare(Bench.all(loader.item, "SpeciesRow")[0].selected, true)
        }

        function test_aNewThemeKeepsQueryGroupSheetAndPlace() {
            mouseClick(row("Test Gecko"))
            search().text = "uvb"
            mouseClick(chip("Reptiles"))
            const sheet = Bench.all(loader.item, "CareSheetView")[0]
            const scroll = Bench.all(sheet, "OMScroll")[0]
            scroll.contentY = 200
            const before = String(VLUI.text)
            Bench.storeTheme("lavender-pearl")
            verify(String(VLUI.text) !== before)
            compare(Bench.named(sheet, "OMText", "Test Gecko").color, VLUI.text)
            compare([search().text, chip("Reptiles").selected, AppModel.speciesID], ["uvb", true, "test-gecko"])
            verify(Bench.all(sheet, "OMScroll")[0] === scroll)
            compare(scroll.contentY, 200)
        }

        function test_queryAndGroupAreLostWhenTheScreenIsLeft() {
            mouseClick(row("Test Gecko"))
            search().text = "uvb"
            mouseClick(chip("Reptiles"))
            loader.active = false
            loader.active = true
            compare([search().text, chip("All").selected, AppModel.speciesID], ["", true, "test-gecko"])
            compare(empties(), [])
        }

        function test_veryLongNamesStayInTheirPlaces() {
            AppModel.speciesID = "test-crab"
            const sheet = Bench.all(loader.item, "CareSheetView")[0]
            waitForRendering(loader.item)
            for (const kind of ["OMText", "CareText", "VLChromeButton", "OMCard"])
                for (const item of Bench.all(sheet, kind)) {
                    const place = Bench.place(item)
                    verify(place.x >= Bench.place(sheet).x - 0.5, kind + " " + item.text)
                    verify(place.x + place.width <= root.width + 0.5, kind + " " + item.text)
                }
        }
    }
}
