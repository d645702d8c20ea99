import QtQuick
import QtTest
import Ormiva.Bench
import Ormiva.Kit

Item {
    id: root

    width: 960
    height: 640

    Item {
        id: zoomed

        width: root.width / VLUI.zoom
        height: root.height / VLUI.zoom
        scale: VLUI.zoom
        transformOrigin: Item.TopLeft

        OMChoice {
            id: choice

            x: 20
            y: 20
            controlName: "Animal"
            choices: TextChoices {
                id: animals

                ids: ["ant", "bear", "bee", "cat"]
                titles: ["Ant", "Bear", "Bee", "Cat"]
            }
        }
        SpeciesPicker {
            id: species

            x: 20
            y: 70
            noneTitle: "No species"
        }
        OMChoice {
            id: corner

            anchors.right: parent.right
            anchors.bottom: parent.bottom
            width: 140
            choices: TextChoices {
                id: many
            }
        }
    }
    Component {
        id: petPicker

        PetPicker {
            x: 20
            y: 120
        }
    }

    SignalSpy {
        id: changes

        target: animals
        signalName: "valueChanged"
    }

    TestCase {
        name: "Choices"
        when: windowShown

        function init() {
            Bench.reset()
            animals.chosen = ""
            choice.typingPause = 1000000
            species.species = ""
            species.allowNone = false
            species.width = species.implicitWidth
            many.ids = []
            corner.forceActiveFocus(Qt.MouseFocusReason)
            changes.clear()
        }

        function cleanup() {
            for (const control of [choice, species, corner]) {
                if (control.list)
                    control.list.close()
                tryVerify(() => control.list === null)
            }
        }

        function opened(control) {
            tryVerify(() => control.list !== null && control.list.opened)
            return control.list
        }
        function current(list) {
            return list.view.currentItem.title
        }
        function type(text) {
            for (const letter of text)
                keyClick(letter)
        }
        function focused(control) {
            corner.forceActiveFocus(Qt.MouseFocusReason)
            control.forceActiveFocus(Qt.TabFocusReason)
            return control
        }
        function visibleRows(list) {
            return Bench.all(list.view, "ChoiceRow")
        }

        function test_saysWhatItIsAndWhatIsChosen() {
            compare(Bench.accessibleRole(choice), Accessible.ComboBox)
            compare(Bench.accessibleName(choice), "Animal: —")
            animals.chosen = "bee"
            compare(Bench.accessibleName(choice), "Animal: Bee")
            compare(Bench.texts(choice, "OMText"), ["Bee"])
            compare(Bench.all(choice, "Symbol")[0].name, "chevron.up.chevron.down")
        }

        function test_isOpenedByMouseAndKeys_data() {
            return [
                {tag: "mouse", open: () => mouseClick(choice)},
                {tag: "Space", open: () => keyClick(Qt.Key_Space)},
                {tag: "Return", open: () => keyClick(Qt.Key_Return)},
                {tag: "Down", open: () => keyClick(Qt.Key_Down)},
                {tag: "Up", open: () => keyClick(Qt.Key_Up)}
            ]
        }
        function test_isOpenedByMouseAndKeys(data) {
            focused(choice)
            data.open()
            const list = opened(choice)
            verify(list.view.activeFocus)
            compare(list.view.count, 4)
            compare(Bench.accessibleRole(list.view), Accessible.List)
            compare(Bench.accessibleName(list.view), "Animal")
        }

        function test_anotherClickOrEscapeClosesIt() {
            mouseClick(choice)
            opened(choice)
            mouseClick(choice)
            tryVerify(() => choice.list === null)
            mouseClick(choice)
            opened(choice)
            keyClick(Qt.Key_Escape)
            tryVerify(() => choice.list === null)
            verify(choice.visualFocus)
            compare(changes.count, 0)
        }

        function test_isChosenFromByTheMouse() {
            mouseClick(choice)
            const rows = visibleRows(opened(choice))
            compare(rows.map(row => Bench.accessibleName(row)), ["Ant", "Bear", "Bee", "Cat"])
            compare(Bench.accessibleRole(rows[2]), Accessible.ListItem)
            mouseClick(rows[2])
            tryVerify(() => choice.list === null)
            compare(animals.chosen, "bee")
            compare(changes.count, 1)
            verify(choice.activeFocus)
            verify(!choice.visualFocus)
        }

        function test_isChosenFromByKeys() {
            keyClick(Qt.Key_Space, Qt.NoModifier, 0, focused(choice))
            const list = opened(choice)
            const seen = []
            for (const key of [Qt.Key_Home, Qt.Key_Down, Qt.Key_Down, Qt.Key_Up, Qt.Key_End, Qt.Key_Down, Qt.Key_PageUp, Qt.Key_PageDown]) {
                keyClick(key)
                seen.push(current(list))
            }
            compare(seen, ["Ant", "Bear", "Bee", "Bear", "Cat", "Cat", "Ant", "Cat"])
            compare(changes.count, 0)
            keyClick(Qt.Key_Return)
            tryVerify(() => choice.list === null)
            compare(animals.chosen, "cat")
            verify(choice.visualFocus)
        }

        function test_theChosenEntryIsMarked() {
            animals.chosen = "bee"
            mouseClick(choice)
            const rows = visibleRows(opened(choice))
            const marks = rows.map(row => Bench.all(row, "Symbol").length)
            compare(marks, [0, 0, 1, 0])
            compare(rows.map(row => row.Accessible.selected), [false, false, true, false])
        }

        function test_thePointerLeadsTheHighlight() {
            mouseClick(choice)
            const list = opened(choice)
            const rows = visibleRows(list)
            mouseMove(rows[1], 30, 10)
            mouseMove(rows[3], 30, 10)
            tryCompare(list.view, "currentIndex", 3)
            mouseMove(rows[1], 30, 10)
            tryCompare(list.view, "currentIndex", 1)
        }

        function test_lettersLeadToAnEntryOfTheOpenList() {
            keyClick(Qt.Key_Down, Qt.NoModifier, 0, focused(choice))
            const list = opened(choice)
            type("B")
            compare(current(list), "Bear")
            type("ee")
            compare(current(list), "Bee")
            type("x")
            compare(current(list), "Bee")
            compare(changes.count, 0)
            keyClick(Qt.Key_Space)
            tryCompare(animals, "chosen", "bee")
        }

        function test_lettersChooseOnTheClosedControl() {
            focused(choice)
            type("be")
            compare(animals.chosen, "bear")
            type("e")
            compare(animals.chosen, "bee")
            type("zz")
            compare(animals.chosen, "bee")
            compare(choice.list, null)
        }

        function test_aPauseBeginsANewWord() {
            choice.typingPause = 1
            focused(choice)
            type("b")
            tryCompare(choice, "typed", "")
            type("c")
            compare(animals.chosen, "cat")
        }

        function test_disabledDoesNothing() {
            choice.enabled = false
            compare(choice.opacity, 0.4)
            mouseClick(choice)
            compare(choice.list, null)
            choice.enabled = true
        }

        function test_showsARingOnlyForTheKeyboard() {
            focused(choice)
            compare(Bench.all(choice, "FocusRing").length, 1)
            corner.forceActiveFocus(Qt.MouseFocusReason)
            choice.forceActiveFocus(Qt.MouseFocusReason)
            compare(Bench.all(choice, "FocusRing").length, 0)
        }

        function manyIds() {
            const ids = []
            for (let i = 0; i < 200; ++i)
                ids.push("Choice number " + i)
            many.titles = ids
            many.ids = ids
        }

        function zooms() {
            return [{tag: "85%", zoom: 0.85}, {tag: "100%", zoom: 1}, {tag: "200%", zoom: 2}]
        }

        function verifyInside(popup) {
            const place = Bench.place(popup.background)
            verify(place.left >= 0 && place.top >= 0, place)
            verify(place.right <= root.width && place.bottom <= root.height, place)
            fuzzyCompare(place.height, popup.height * VLUI.zoom, 0.5)
            return place
        }

        function test_longListStaysInsideTheWindowAndOffItsControl_data() { return zooms() }
        function test_longListStaysInsideTheWindowAndOffItsControl(data) {
            Bench.storeZoom(data.zoom)
            manyIds()
            many.chosen = "Choice number 150"
            mouseClick(corner)
            const list = opened(corner)
            const place = verifyInside(list)
            verify(place.height >= 300)
            verify(place.bottom <= Bench.place(corner).top)
            tryVerify(() => current(list) === "Choice number 150")
            const row = Bench.place(list.view.currentItem)
            verify(row.top >= place.top && row.bottom <= place.bottom, row)
            verify(visibleRows(list).length < 20)
            keyClick(Qt.Key_End)
            compare(current(list), "Choice number 199")
            verify(Bench.place(list.view.currentItem).bottom <= place.bottom)
            keyClick(Qt.Key_PageUp)
            verify(Bench.place(list.view.currentItem).top >= place.top)
            verify(list.view.currentIndex < 197 && list.view.currentIndex > 180)
        }

        function test_wheelScrollsTheListAndNothingElse() {
            manyIds()
            mouseClick(corner)
            const list = opened(corner)
            const before = list.view.contentY
            mouseWheel(list.view, 40, 60, 0, -120)
            compare(list.view.contentY, before + 72)
            compare(list.view.currentIndex, corner.choices.current)
        }

        function test_speciesAreListedByNameWithTheirDrawings() {
            species.species = "test-gecko"
            compare(species.text, "Test Gecko")
            compare(Bench.all(species, "SpeciesIcon").length, 1)
            mouseClick(species)
            const rows = visibleRows(opened(species))
            compare(rows.map(row => row.title.slice(0, 13)), ["A Hermit Crab", "Test Gecko", "Test Rabbit"])
            for (const row of rows)
                compare(Bench.all(row, "SpeciesIcon").length, 1)
            mouseClick(rows[2])
            compare(species.species, "test-rabbit")
        }

        function test_speciesMayBeNone() {
            species.allowNone = true
            species.species = "no-such-species"
            compare(species.text, "No species")
            compare(Bench.all(species, "SpeciesIcon").length, 0)
            mouseClick(species)
            const rows = visibleRows(opened(species))
            compare(rows.map(row => row.title).slice(0, 1), ["No species"])
            compare(Bench.all(rows[0], "SpeciesIcon").length, 0)
            species.list.close()
            tryVerify(() => species.list === null)
            species.species = "test-gecko"
            mouseClick(species)
            mouseClick(visibleRows(opened(species))[0])
            compare(species.species, "")
        }

        function test_longNamesAreElided() {
            species.species = "test-crab"
            const label = Bench.all(species, "OMText")[0]
            verify(label.truncated)
            verify(Bench.place(label).right < Bench.place(Bench.all(species, "Symbol")[0]).left)
            mouseClick(species)
            const list = opened(species)
            compare(list.width, 460)
            const row = visibleRows(list)[0]
            verify(Bench.all(row, "OMText")[0].truncated)
            verify(Bench.place(Bench.all(row, "OMText")[0]).right <= Bench.place(row).right)
        }

        function test_petsFollowTheRecords() {
            Bench.openStore()
            const picker = createTemporaryObject(petPicker, zoomed, {noneTitle: "All pets / the household"})
            compare([picker.text, picker.choices.count], ["All pets / the household", 1])
            const ziggy = Bench.addPet("Ziggy", "test-gecko")
            Bench.addPet("Bo", "a-phoenix")
            compare(picker.choices.count, 2)
            picker.allowNone = true
            picker.petID = ziggy
            compare(picker.text, "Ziggy (Test Gecko)")
            mouseClick(picker)
            const list = opened(picker)
            compare(visibleRows(list).map(row => row.title), ["All pets / the household", "Bo (a-phoenix)", "Ziggy (Test Gecko)"])
            type("b")
            compare(current(list), "Bo (a-phoenix)")
            keyClick(Qt.Key_Return)
            tryVerify(() => picker.list === null)
            compare(picker.text, "Bo (a-phoenix)")
            mouseClick(picker)
            tryVerify(() => current(opened(picker)) === "Bo (a-phoenix)")
            Bench.addPet("Abe", "test-gecko")
            tryVerify(() => current(picker.list) === "Bo (a-phoenix)")
            Bench.removePet(picker.petID)
            compare(picker.text, "All pets / the household")
            keyClick(Qt.Key_Escape)
            tryVerify(() => picker.list === null)
        }

        function test_withoutAStoreThereAreNoPets() {
            const picker = createTemporaryObject(petPicker, zoomed)
            mouseClick(picker)
            compare(visibleRows(opened(picker)).map(row => row.title), ["—"])
            keyClick(Qt.Key_Escape)
            tryVerify(() => picker.list === null)
        }
    }
}
