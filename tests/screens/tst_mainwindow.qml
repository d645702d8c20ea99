import QtQuick
import QtTest
import Ormiva.Bench
import Ormiva.Kit
import Ormiva.Screens

Item {
    id: root

    width: 1180
    height: 760

    Main {
        id: main

        width: 1200
        height: 820
    }

    TestCase {
        name: "MainWindow"
        when: windowShown

        readonly property Item content: main.contentItem

        function initTestCase() {
            main.requestActivate()
            tryCompare(main, "active", true)
        }

        function init() {
            Bench.reset()
            wait(0)
        }

        function dialogText() { return Bench.all(content, "CareText").map(item => Bench.lines(item)) }
        function titles() { return Bench.texts(content, "OMHeader") }

        function test_window() {
            compare([main.title, main.minimumWidth, main.minimumHeight], ["VLK Ormiva", Math.min(900, main.roomWidth), Math.min(600, main.roomHeight)])
        }

        function test_railListsTheGroupsAndScreens() {
            const rail = Bench.all(content, "SideRail")[0]
            compare(Bench.texts(rail, "OMText"), [
                "VLK Ormiva", "by Ventrel (VLK)",
                "Learn", "Home", "Species Library", "Symptom Checker",
                "My Animals", "My Pets", "Care Calendar", "Enclosure Checklist",
                "Help", "Find a Vet & Emergencies",
                "Settings & Backup"])
        }

        function test_aScreenReaderIsToldWhatThingsAre() {
            const roleOf = (type, text) => Bench.accessibleRole(Bench.named(content, type, text))
            compare(roleOf("RailButton", "My Pets"), Accessible.PageTab)
            compare(roleOf("FilterChip", "Mammals"), Accessible.RadioButton)
            compare(Bench.accessibleRole(Bench.all(content, "SpeciesRow")[0]), Accessible.ListItem)
            AppModel.speciesID = "test-rabbit"
            tryVerify(() => Bench.all(content, "SourceRow").length > 0)
            compare(Bench.accessibleRole(Bench.all(content, "SourceRow")[0]), Accessible.Link)
            compare(roleOf("VLChromeButton", "Check Symptoms"), Accessible.Button)
        }

        function test_railChangesTheScreenAndShowsWhichIsUp() {
            const rail = Bench.all(content, "SideRail")[0]
            mouseClick(Bench.named(rail, "RailButton", "My Pets"))
            compare(AppModel.screen, "pets")
            compare(Bench.all(rail, "RailButton").filter(item => item.selected).map(item => item.text), ["My Pets"])
        }

        function test_otherScreensSayThatTheyAreStillToCome() {
            const seen = []
            for (const id of ["home", "symptoms", "pets", "calendar", "checklist", "vets", "settings"]) {
                AppModel.screen = id
                const page = Bench.all(content, "OMPage")[0]
                const texts = Bench.texts(page, "OMText").filter(text => text !== "")
                compare(texts.slice(1), ["This screen is still to come."])
                seen.push(texts[0])
            }
            compare(seen, ["Home", "Symptom Checker", "My Pets", "Care Calendar", "Enclosure Checklist", "Find a Vet & Emergencies", "Settings & Backup"])
        }

        function test_keysGoToTheScreens() {
            const seen = []
            for (let i = 1; i <= 8; ++i) {
                Bench.press(main, "Ctrl+" + i)
                seen.push(AppModel.screen)
            }
            compare(seen, ["home", "library", "symptoms", "pets", "calendar", "checklist", "vets", "settings"])
        }

        function test_newPetOpensTheSheetAndEscapeClosesIt() {
            Bench.press(main, "Ctrl+N")
            compare(Bench.editedSpecies(), "")
            tryVerify(() => Bench.named(content, "OMText", "This editor is still to come."))
            verify(Bench.named(content, "VLChromeButton", "Cancel").activeFocus)
            Bench.press(main, "Ctrl+4")
            compare(AppModel.screen, "library")
            Bench.press(main, "Esc")
            compare(AppModel.sheetIdentity, "")
            tryVerify(() => Bench.named(content, "OMText", "This editor is still to come.") === null)
        }

        function test_sheetIsClosedByItsButton() {
            AppModel.editNewPet("test-gecko")
            tryVerify(() => Bench.named(content, "VLChromeButton", "Cancel"))
            mouseClick(Bench.named(content, "VLChromeButton", "Cancel"))
            compare(Bench.editedSpecies(), "-")
        }

        function test_messageIsShownUntilItIsDismissed_data() {
            return [{tag: "Return", key: "Return"}, {tag: "Escape", key: "Esc"}, {tag: "mouse"}]
        }
        function test_messageIsShownUntilItIsDismissed(data) {
            Bench.setMessage("Something went wrong.\nTry again.")
            tryVerify(() => Bench.named(content, "VLChromeButton", "OK"))
            compare(dialogText(), [["Something went wrong.", "Try again."]])
            compare(Bench.texts(content, "OMText").filter(text => text === "VLK Ormiva").length, 3) // menu bar, rail, alert
            Bench.setMessage("A newer one.")
            compare(dialogText(), [["A newer one."]])
            if (data.key)
                Bench.press(main, data.key)
            else
                mouseClick(Bench.named(content, "VLChromeButton", "OK"))
            compare(AppModel.message, "")
            tryVerify(() => Bench.named(content, "VLChromeButton", "OK") === null)
        }

        function test_aDialogueGivesTheFocusBack_data() {
            return [{tag: "message", open: () => Bench.setMessage("A message.")},
                    {tag: "question", open: () => Bench.askDelete("Ava")},
                    {tag: "sheet", open: () => AppModel.editNewPet("")}]
        }
        function test_aDialogueGivesTheFocusBack(data) {
            const field = Bench.all(content, "VLSearchField")[0].input
            field.forceActiveFocus()
            data.open()
            tryVerify(() => Bench.all(content, "VLChromeButton").some(button => button.activeFocus))
            Bench.press(main, "Esc")
            tryVerify(() => field.activeFocus)
        }

        function test_confirmationIsCancelledByReturnAndEscape_data() {
            return [{tag: "Return", key: "Return"}, {tag: "Escape", key: "Esc"}]
        }
        function test_confirmationIsCancelledByReturnAndEscape(data) {
            Bench.askDelete("Spike")
            tryVerify(() => Bench.named(content, "VLChromeButton", "Delete"))
            verify(Bench.named(content, "OMText", "Delete Spike?"))
            compare(dialogText(), [["This can't be undone (a backup made earlier can bring it back)."]])
            Bench.press(main, data.key)
            compare([AppModel.confirming, Bench.deleted()], [false, 0])
        }

        function test_confirmationRunsItsActionOnce() {
            Bench.askDelete("Spike")
            tryVerify(() => Bench.named(content, "VLChromeButton", "Delete"))
            mouseClick(Bench.named(content, "VLChromeButton", "Delete"))
            compare([AppModel.confirming, Bench.deleted()], [false, 1])
        }

        function test_aMessageLiesOverTheSheet() {
            AppModel.editNewPet("")
            tryVerify(() => Bench.named(content, "VLChromeButton", "Cancel"))
            Bench.setMessage("Over it.")
            tryVerify(() => Bench.named(content, "VLChromeButton", "OK"))
            Bench.press(main, "Esc")
            compare([AppModel.message, Bench.editedSpecies()], ["", ""])
            tryVerify(() => Bench.named(content, "VLChromeButton", "OK") === null)
            Bench.press(main, "Esc")
            compare(Bench.editedSpecies(), "-")
        }

        function test_themeMenuListsAllAndChecksTheCurrent() {
            mouseClick(Bench.named(content, "OMMenuBarItem", "Theme"))
            const items = () => Bench.all(content, "OMMenuItem")
            tryVerify(() => items().length === 8)
            compare(items().map(item => item.text), ["Cobalt Gunmetal", "Candy Red Titanium", "Rose Gold", "Lavender Pearl",
                                                     "Midnight Black", "Brushed Gray", "Rainforest Canopy", "Desert Stone"])
            compare(items().filter(item => item.checked).map(item => item.text), ["Rainforest Canopy"])
            tryVerify(() => items()[2].y > items()[1].y && items()[1].y > 0)
            mouseClick(items()[2])
            compare(Bench.storedTheme(), "rose-gold")
            compare(VLUI.currentThemeID, "rose-gold")
            tryVerify(() => items().length === 0)
            mouseClick(Bench.named(content, "OMMenuBarItem", "Theme"))
            tryVerify(() => items().length === 8)
            compare(items().filter(item => item.checked).map(item => item.text), ["Rose Gold"])
            Bench.press(main, "Esc")
            tryVerify(() => items().length === 0)
        }

        function test_anUnknownStoredThemeShowsTheDefault() {
            Bench.storeTheme("no-such-theme")
            compare([Bench.storedTheme(), VLUI.currentThemeID], ["no-such-theme", "rainforest-canopy"])
        }

        function test_zoomKeepsTheMenuBarAndScalesTheRest() {
            Bench.storeZoom(2)
            compare(Bench.place(Bench.all(content, "MainMenuBar")[0]), Qt.rect(0, 0, 1200, 30))
            compare(Bench.place(Bench.all(content, "SideRail")[0]).width, 480)
            const host = Bench.all(content, "VLZoomHost")[0]
            compare([host.logicalWidth, host.logicalHeight], [1180, 760])
        }

        function test_everyTabStopOfTheLibraryHasAName() {
            AppModel.speciesID = "test-rabbit"
            const names = []
            Bench.press(main, "Ctrl+F")
            const first = main.activeFocusItem
            for (let i = 0; i < 200; ++i) {
                const name = Bench.accessibleName(main.activeFocusItem)
                verify(name !== "", "stop " + i + " " + main.activeFocusItem)
                names.push(name)
                Bench.press(main, "Tab")
                if (main.activeFocusItem === first)
                    break
            }
            const search = "Search care sheets (e.g. UVB, calcium, shed)"
            compare(names.slice(0, 9), [search, "All", "Mammals", "Reptiles", "Amphibians", "Birds", "Invertebrates", "Test Rabbit, Cuniculus probatus", "Test Rabbit"])
            verify(names.includes("Home") && names.includes("Settings & Backup"))
            compare(names.filter(name => name === search).length, 1)
        }
    }
}
