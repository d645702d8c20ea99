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
        id: menus

        name: "Menus"
        when: windowShown

        readonly property Item content: main.contentItem
        readonly property var bar: Bench.all(content, "MainMenuBar")[0]

        function initTestCase() {
            main.requestActivate()
            tryCompare(main, "active", true)
        }

        function init() {
            Bench.reset()
            AppModel.screen = "home"
            for (const menu of open())
                menu.close()
            tryVerify(() => open().length === 0 && Bench.all(content, "VLChromeButton").length === 0)
            main.requestActivate()
            tryCompare(main, "active", true)
        }

        function open() {
            const found = []
            for (let i = 0; i < bar.count; ++i)
                if (bar.itemAt(i).menu.opened)
                    found.push(bar.itemAt(i).menu)
            return found
        }
        function openTitles() { return open().map(menu => menu.title) }

        function lines(menu) {
            menu.open()
            tryCompare(menu, "opened", true)
            const all = []
            for (let i = 0; i < menu.count; ++i) {
                const item = menu.itemAt(i)
                if (item.text === undefined)
                    all.push("-")
                else
                    all.push(item.text + (item.keys ? " | " + item.keys : "") + (item.subMenu ? " >" : ""))
            }
            menu.close()
            return all
        }
        function menuNamed(title) {
            for (let i = 0; i < bar.count; ++i)
                if (bar.itemAt(i).text === title)
                    return bar.itemAt(i).menu
            return null
        }
        function itemNamed(menu, text) {
            for (let i = 0; i < menu.count; ++i)
                if (menu.itemAt(i).text === text)
                    return menu.itemAt(i)
            return null
        }
        // Opens the menu and triggers the item by mouse.
        function choose(title, text) {
            const menu = menuNamed(title)
            menu.open()
            tryCompare(menu, "opened", true)
            const item = itemNamed(menu, text)
            tryVerify(() => item === menu.itemAt(0) || item.y > 0)
            mouseClick(item)
            tryCompare(menu, "opened", false)
        }

        // The name of what has the focus, as a screen reader is told.
        function said() { return Bench.spoken().split(": ")[1] }

        function closeSheet() {
            AppModel.closeSheet()
            tryVerify(() => Bench.all(content, "VLChromeButton").length === 0)
        }

        function test_listTheirItems_data() {
            return [
                {tag: "VLK Ormiva", lines: ["About VLK Ormiva", "Ventrel Website"]},
                {tag: "File", lines: ["New Pet… | Ctrl+N", "Log a Weight… | Ctrl+Shift+W", "Log a Meal…", "New Reminder…",
                        "-", "Export Care Sheet (PDF)… | Ctrl+Shift+E", "Export Records for the Vet (PDF)…", "-",
                        "Back Up Now… | Ctrl+Shift+B", "-", "Quit | Ctrl+Q"]},
                {tag: "View", lines: ["Zoom In | Ctrl++", "Zoom Out | Ctrl+-", "Actual Size (100%) | Ctrl+0", "Zoom Level >"]},
                {tag: "Go", lines: ["Home | Ctrl+1", "Species Library | Ctrl+2", "Symptom Checker | Ctrl+3", "My Pets | Ctrl+4",
                        "Care Calendar | Ctrl+5", "Enclosure Checklist | Ctrl+6", "Find a Vet & Emergencies | Ctrl+7",
                        "Settings & Backup | Ctrl+8"]},
                {tag: "Theme", lines: ["Cobalt Gunmetal", "Candy Red Titanium", "Rose Gold", "Lavender Pearl", "Midnight Black",
                        "Brushed Gray", "Rainforest Canopy", "Desert Stone"]},
                {tag: "Help", lines: ["VLK Ormiva Help | Ctrl+?", "-", "Getting started (start to finish)",
                        "Not a substitute for a veterinarian", "Species Library and search", "Symptom Checker",
                        "My Pets: profiles and photos", "Weight, feeding and shed logs", "Vet visits and medicines",
                        "Reminders and notifications", "Care Calendar", "Enclosure checklist", "Records for the vet (PDF and CSV)",
                        "Printable care sheet (PDF)", "Backup and restore", "Keyboard shortcuts", "Sources & Credits",
                        "Themes and interface zoom", "About Ventrel", "-", "Ventrel Website"]},
            ]
        }
        function test_listTheirItems(data) {
            compare(lines(menuNamed(data.tag)), data.lines)
        }

        function test_standInTheirOrder() {
            const titles = []
            for (let i = 0; i < bar.count; ++i)
                titles.push(bar.itemAt(i).text)
            compare(titles, ["VLK Ormiva", "File", "View", "Go", "Theme", "Help"])
            const levels = itemNamed(menuNamed("View"), "Zoom Level").subMenu
            const shown = []
            for (let i = 0; i < levels.count; ++i)
                shown.push(levels.itemAt(i).text)
            compare(shown, ["85%", "100%", "115%", "130%", "150%", "175%", "200%"])
        }

        function test_newEntriesAreOpenedByMenu() {
            choose("File", "Log a Meal…")
            compare(Bench.sheet(), "") // nobody to feed
            choose("File", "Log a Weight…")
            compare(Bench.sheet(), "p0") // which leads to making a pet
            closeSheet()
            choose("File", "New Reminder…")
            compare([Bench.sheet(), Bench.sheetPet()], ["r0", 0])
            closeSheet()

            Bench.addPet("Zoe", "test-gecko")
            const first = Bench.addPet("ava", "test-rabbit")
            Bench.addPet("Max", "test-crab")
            for (const [item, sheet] of [["Log a Weight…", "w0"], ["Log a Meal…", "f0"], ["New Reminder…", "r0"]]) {
                choose("File", item)
                compare([Bench.sheet(), Bench.sheetPet()], [sheet, first])
                closeSheet()
            }
            choose("File", "New Pet…")
            compare(Bench.sheet(), "p0")
        }

        function test_newEntriesAreOpenedByKeys() {
            Bench.addPet("Ava", "test-rabbit")
            for (const [keys, sheet] of [["Ctrl+N", "p0"], ["Ctrl+Shift+W", "w0"]]) {
                Bench.press(main, keys)
                compare(Bench.sheet(), sheet)
                closeSheet()
            }
        }

        function test_exportsAndBackupsAskWhere() {
            Bench.press(main, "Ctrl+Shift+E")
            compare(AppModel.message, "Add a pet first (My Pets → Add), then export its care sheet.")
            AppModel.dismissMessage()
            tryVerify(() => Bench.all(content, "VLChromeButton").length === 0)
            Bench.addPet("Ava", "test-rabbit")
            Bench.press(main, "Ctrl+Shift+E")
            choose("File", "Export Records for the Vet (PDF)…")
            Bench.press(main, "Ctrl+Shift+B")
            compare(AppModel.screen, "settings")
            const asked = Bench.asked()
            compare(asked.length, 3)
            compare(asked[0], "save Ava - care sheet.pdf")
            verify(asked[1].startsWith("save Ava"))
            verify(asked[2].endsWith(".ombackup"))
        }

        function test_zoomGoesByStepsWithinItsLimits() {
            const seen = []
            for (const keys of ["Ctrl++", "Ctrl+=", "Ctrl++", "Ctrl++", "Ctrl++", "Ctrl++", "Ctrl++", "Ctrl++", "Ctrl+0", "Ctrl+-", "Ctrl+-"]) {
                Bench.press(main, keys)
                seen.push(VLUI.zoom)
            }
            compare(seen, [1.15, 1.3, 1.45, 1.6, 1.75, 1.9, 2, 2, 1, 0.85, 0.85])
            Bench.storeZoom(0.9)
            Bench.press(main, "Ctrl+-")
            compare(VLUI.zoom, 0.85)
            VLUI.zoomTo(175)
            compare(VLUI.zoom, 1.75)
            const levels = itemNamed(menuNamed("View"), "Zoom Level").subMenu
            compare(levels.itemAt(5).checked, true)
            compare(levels.itemAt(4).checked, false)
        }

        function test_aLevelIsChosenInTheSubmenuByKeys() {
            Bench.press(main, "Alt+V")
            tryCompare(menuNamed("View"), "opened", true)
            const levels = itemNamed(menuNamed("View"), "Zoom Level").subMenu
            Bench.press(main, "End")
            Bench.press(main, "Right")
            tryCompare(levels, "opened", true)
            Bench.press(main, "Down")
            Bench.press(main, "Down")
            Bench.press(main, "Return")
            compare(VLUI.zoom, 1.15)
            tryCompare(menuNamed("View"), "opened", false)
        }

        function test_f10EntersTheBarAndEscapeLeadsBack() {
            const before = Bench.focusItem(content)
            Bench.press(main, "F10")
            compare(said(), "VLK Ormiva")
            const seen = []
            for (const key of ["Right", "Right", "Left", "Left", "Left"]) {
                Bench.press(main, key)
                seen.push(said())
            }
            compare(seen, ["File", "View", "File", "VLK Ormiva", "Help"])
            Bench.press(main, "Esc")
            compare(Bench.focusItem(content), before)

            AppModel.screen = "library"
            tryVerify(() => Bench.all(content, "VLSearchField").length === 1)
            const field = Bench.all(content, "VLSearchField")[0].input
            field.forceActiveFocus()
            Bench.press(main, "F10")
            Bench.press(main, "Esc")
            verify(field.activeFocus)
        }

        function test_anOpenMenuTakesArrowsAndLetters() {
            Bench.press(main, "Alt+F")
            tryVerify(() => openTitles().join() === "File")
            compare(menuNamed("File").currentIndex, 0)
            Bench.press(main, "Right")
            tryVerify(() => openTitles().join() === "View")
            Bench.press(main, "Right")
            tryVerify(() => openTitles().join() === "Go")
            Bench.press(main, "Left")
            tryVerify(() => openTitles().join() === "View")
            Bench.press(main, "Right")
            tryVerify(() => openTitles().join() === "Go")
            Bench.press(main, "S") // one of three
            compare(menuNamed("Go").currentIndex, 1)
            Bench.press(main, "S")
            compare(menuNamed("Go").currentIndex, 2)
            Bench.press(main, "S")
            Bench.press(main, "S")
            compare(menuNamed("Go").currentIndex, 1)
            Bench.press(main, "X")
            compare(menuNamed("Go").currentIndex, 1)
            Bench.press(main, "M") // the only one
            compare(AppModel.screen, "pets")
            tryVerify(() => open().length === 0)
        }

        function test_afterAllMenusTheFocusIsWhereItWas() {
            AppModel.screen = "library"
            tryVerify(() => Bench.all(content, "VLSearchField").length === 1)
            const field = Bench.all(content, "VLSearchField")[0].input
            field.forceActiveFocus()
            Bench.press(main, "Alt+F")
            for (const title of ["View", "Go", "Theme"]) {
                Bench.press(main, "Right")
                tryVerify(() => openTitles().join() === title)
            }
            Bench.press(main, "Esc")
            tryVerify(() => field.activeFocus)
            Bench.press(main, "Alt+G")
            tryVerify(() => openTitles().join() === "Go")
            Bench.press(main, "Esc")
            tryVerify(() => field.activeFocus)
        }

        function test_afterACommandTheFocusIsWhereItWas() {
            AppModel.screen = "library"
            tryVerify(() => Bench.all(content, "VLSearchField").length === 1)
            const field = Bench.all(content, "VLSearchField")[0].input
            field.forceActiveFocus()
            Bench.press(main, "Alt+T")
            tryVerify(() => openTitles().join() === "Theme")
            Bench.press(main, "R")
            Bench.press(main, "Return")
            tryVerify(() => open().length === 0)
            compare(Bench.storedTheme(), "rose-gold")
            tryVerify(() => field.activeFocus)
        }

        function test_aMenuLongerThanTheWindowScrolls() {
            main.height = 620
            const help = menuNamed("Help")
            Bench.press(main, "Alt+H")
            tryCompare(help, "opened", true)
            verify(help.height <= content.height)
            Bench.press(main, "End")
            const last = help.itemAt(help.count - 1)
            tryVerify(() => {
                const place = Bench.place(last)
                return place.y >= 0 && place.y + place.height <= content.height
            })
            Bench.press(main, "Return")
            compare(Bench.opened, ["https://ventrel.example"])
            main.height = 820
        }

        function test_theWebsiteIsOpenedFromBothMenus() {
            choose("VLK Ormiva", "Ventrel Website")
            choose("Help", "Ventrel Website")
            compare(Bench.opened, ["https://ventrel.example", "https://ventrel.example"])
        }
    }
}
