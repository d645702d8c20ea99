import QtQuick
import QtTest
import Ormiva.Bench
import Ormiva.Kit
import Ormiva.Screens

Item {
    id: root

    width: 760
    height: 700

    CareSheetView {
        id: view

        anchors.fill: parent
    }

    TestCase {
        name: "CareSheet"
        when: windowShown

        function init() {
            Bench.reset()
            view.speciesID = ""
            view.speciesID = "test-gecko"
            waitForRendering(view)
        }

        function cards() { return Bench.all(view, "OMCard") }
        function card(title) { return cards().find(item => item.title === title) }
        function scroll() { return Bench.all(view, "OMScroll")[0] }
        function header() { return Bench.all(view, "CareSheetHeader")[0] }
        function button(title) { return Bench.named(view, "VLChromeButton", title) }
        function textOf(item) { return Bench.lines(Bench.all(item, "CareText")[0]) }
        function chipsOf(item) { return Bench.texts(item, "SourceChipButton") }

        function test_headTellsNameGroupAndSources() {
            // merck-a, vca, merck-b, gone, keepers and nowhere: what has no source counts too.
            compare(Bench.texts(header(), "OMText").slice(0, 3), ["Test Gecko", "Gecko probatus", "REPTILES · 6 SOURCES"])
            view.speciesID = "test-rabbit"
            compare(Bench.texts(header(), "OMText").slice(0, 3), ["Test Rabbit", "Cuniculus probatus", "MAMMALS · 1 SOURCES"])
        }

        function test_summaryAndLimitedLabel() {
            const texts = Bench.all(view, "CareText").map(item => Bench.lines(item)[0])
            compare(texts.slice(0, 2), ["A gecko for trying things out.", "Little has been written about this gecko."])
            compare(Bench.all(view, "CareText")[1].color, VLUI.warmLight)
            view.speciesID = "test-rabbit"
            const others = Bench.all(view, "CareText").map(item => Bench.lines(item)[0])
            compare(others.slice(0, 2), ["A rabbit for trying things out.", "About redFlags of the test rabbit."])
        }

        function test_cardsStandInTheOrderOfTheSheet() {
            compare(cards().map(item => item.title), [
                "See an exotic vet NOW",
                "Lifespan", "Adult size", "Legal notes",
                "Enclosure & minimum size", "Substrate & bedding", "Hides & furnishings", "Temperature", "Humidity & water quality", "Lighting & UVB",
                "Diet — staples", "Treats", "Toxic or avoid", "Feeding schedule", "Not eating", "Changing foods",
                "Handling & behavior", "Enrichment", "Grooming, shedding & molting",
                "Normal signs", "Warning signs", "Common illnesses", "See an exotic vet NOW",
                "Sources for this care sheet"
            ])
            const sections = Bench.all(view, "CareSections")[0]
            const headings = Bench.texts(sections, "OMText").filter(text => text === text.toUpperCase() && text.length > 3)
            compare(headings, ["AT A GLANCE", "HABITAT", "FOOD", "DAILY LIFE", "HEALTH"])
        }

        function test_tints() {
            const flags = cards().filter(item => item.title === "See an exotic vet NOW")
            compare(flags[0].tint, VLUI.emergency)
            compare(flags[1].tinted, false)
            compare(textOf(flags[0]), ["• Not breathing", "• Bleeding"])
            compare(textOf(flags[1]), textOf(flags[0]))
            const tinted = cards().filter(item => item.tinted).map(item => [item.title, String(item.tint)])
            compare(tinted, [["See an exotic vet NOW", String(VLUI.emergency)],
                             ["Toxic or avoid", String(VLUI.alert)],
                             ["Warning signs", String(VLUI.soon)]])
        }

        function test_textsAndChips() {
            compare(textOf(card("Lighting & UVB")), ["Gentle UVB by day.", "", "• Twelve hours", "• Off at night", "No light at night."])
            compare(chipsOf(card("Lighting & UVB")), ["Merck Vet Manual", "VCA"])
            compare(textOf(card("Legal notes")), ["One line."])
            compare(chipsOf(card("Legal notes")), [])
            compare(chipsOf(card("Treats")), [])
            compare(card("Diet — staples").symbol, "leaf.fill")
        }

        function test_gridHasTwoEqualColumns() {
            const left = Bench.place(card("Lifespan"))
            const right = Bench.place(card("Adult size"))
            fuzzyCompare(left.width, right.width, 0.01)
            compare([left.y, left.height], [right.y, right.height])
            verify(right.x > left.x + left.width)
        }

        function test_bannerIsTheCompactOne() {
            const banner = Bench.all(view, "NotAVetBanner")
            compare(banner.length, 1)
            compare(banner[0].compact, true)
            compare(Bench.texts(banner[0], "OMText"), ["Not a substitute for a veterinarian",
                "This app is not a substitute for a veterinarian. It lists POSSIBLE causes only and never diagnoses. If you are worried about your pet, contact a veterinarian experienced with exotic animals."])
        }

        function test_sourcesAreListedInCitedOrder() {
            const list = Bench.all(view, "SourcesCard")[0]
            verify(Bench.named(list, "OMText", "Written in our own words from these pages. Medicines are never dosed in this app — your vet will dose."))
            compare(Bench.all(list, "SourceRow").map(row => [row.text, row.source.detail]), [
                ["Merck Veterinary Manual — Housing of Reptiles", "https://example.org/merck/housing · checked 2026-05-01"],
                ["Paper Press — A Printed Book", "not an address · checked 2026-05-05"],
                ["VCA Animal Hospitals — Gecko Care", "https://example.org/vca · checked 2026-05-03"],
                ["Merck Veterinary Manual — Feeding of Reptiles", "https://example.org/merck/feeding · checked 2026-05-02"],
                ["Society of Test Keepers (STK) — Keeping in Practice", "https://example.org/keepers/a%201%2Fb · checked 2026-05-04"]
            ])
        }

        function test_sourceRowsOpenTheirPages() {
            for (const row of Bench.all(view, "SourceRow")) {
                row.forceActiveFocus(Qt.TabFocusReason)
                waitForRendering(view)
                mouseClick(row)
            }
            compare(Bench.opened, ["https://example.org/merck/housing", "https://example.org/vca",
                                   "https://example.org/merck/feeding", "https://example.org/keepers/a%201%2Fb"])
        }

        function test_addAsMyPetOpensTheEditor() {
            mouseClick(button("Add as My Pet"))
            compare(Bench.editedSpecies(), "test-gecko")
            compare(AppModel.sheetIdentity, "p0")
        }

        function test_checkSymptomsChoosesThisAnimalWithNothingTicked() {
            Bench.tickSymptom("limping")
            mouseClick(button("Check Symptoms"))
            compare([AppModel.screen, AppModel.checkerSpeciesID, Bench.tickedSymptoms()], ["symptoms", "test-gecko", 0])
        }

        function test_findAVetOpensThatScreen() {
            mouseClick(button("Find an exotic vet"))
            compare([AppModel.screen, AppModel.speciesID], ["vets", ""])
        }

        function test_anotherSpeciesIsShownFromItsTop() {
            scroll().contentY = 500
            view.speciesID = "test-rabbit"
            compare(scroll().contentY, 0)
        }

        function test_scrollsByKeysWhenItHasTheFocus() {
            scroll().forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_PageDown)
            compare(scroll().contentY, view.height - 48)
            keyClick(Qt.Key_PageUp)
            compare(scroll().contentY, 0)
        }

        function test_everyTabStopHasANameAndComesIntoSight() {
            scroll().forceActiveFocus(Qt.TabFocusReason)
            const names = []
            for (let i = 0; i < 200; ++i) {
                const item = Bench.focusItem(view)
                const name = Bench.accessibleName(item)
                verify(name !== "", "stop " + i + " " + item)
                const place = Bench.place(item)
                verify(place.y >= -1 && place.y < root.height, name + " " + place)
                names.push(name)
                keyClick(Qt.Key_Tab)
                if (Bench.focusItem(view) === scroll())
                    break
            }
            compare(names.slice(0, 4), ["Test Gecko", "Add as My Pet", "Check Symptoms", "Find an exotic vet"])
            compare(names.slice(-5).map(name => name.split(" — ")[1]),
                    ["Housing of Reptiles", "A Printed Book", "Gecko Care", "Feeding of Reptiles", "Keeping in Practice"])
            verify(names.length > 30)
        }
    }
}
