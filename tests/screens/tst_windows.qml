import QtQuick
import QtTest
import Ormiva.Bench
import Ormiva.Kit
import Ormiva.Screens

// The windows of the manual and of the about box.
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
        name: "Windows"
        when: windowShown

        readonly property Item content: main.contentItem
        property var help: null
        property var about: null

        function init() {
            Bench.reset()
            main.requestActivate()
            tryVerify(() => Bench.activeTitle() === main.title)
        }
        function cleanup() {
            for (const window of [help, about])
                if (window)
                    window.close()
        }

        function openHelp(keys) {
            Bench.press(main, keys)
            tryVerify(() => Bench.windowTitled("VLK Ormiva Help") !== null)
            help = Bench.windowTitled("VLK Ormiva Help")
            tryVerify(() => Bench.activeTitle() === help.title)
            tryVerify(() => help.viewer !== null)
        }
        function rows() { return Bench.texts(help.contentItem, "HelpTopicRow") }
        function shown() { return help.viewer.current.id }
        function page() { return Bench.lines(Bench.all(help.contentItem, "HelpText")[0]) }

        function test_helpOpensOnTheFirstTopic_data() {
            return [{tag: "F1"}, {tag: "Ctrl+?"}]
        }
        function test_helpOpensOnTheFirstTopic(data) {
            openHelp(data.tag)
            compare([help.width, help.height], [Math.min(860, main.roomWidth), Math.min(600, main.roomHeight)])
            compare(shown(), "start")
            compare(rows().slice(0, 2), ["Getting started (start to finish)", "Not a substitute for a veterinarian"])
            const lines = page()
            compare(lines[1], "1. Read the care sheet")
            compare(lines[2], "•\tOpen Species Library in the side rail, or type a name on Home.")
            verify(help.viewer.search.input.activeFocus)
        }

        function test_helpIsSearched() {
            openHelp("F1")
            for (const letter of "grams")
                Bench.pressInActive(letter)
            compare(help.viewer.query, "grams")
            compare(rows(), ["Getting started (start to finish)", "Weight, feeding and shed logs"])
            for (const letter of "xy")
                Bench.pressInActive(letter)
            compare(rows(), [])
            verify(Bench.named(help.contentItem, "OMText", "Nothing found for \"gramsxy\"."))
            compare(shown(), "")
        }

        function test_helpIsReadByKeys() {
            openHelp("F1")
            Bench.pressInActive("Down")
            Bench.pressInActive("Down")
            compare(shown(), "notavet")
            Bench.pressInActive("End")
            compare(shown(), "about")
            Bench.pressInActive("Home")
            compare(shown(), "start")
            Bench.pressInActive("Up")
            verify(help.viewer.search.input.activeFocus)
            Bench.pressInActive("Esc")
            tryCompare(help, "visible", false)
        }

        function test_aTopicIsOpenedAndAnotherClicked() {
            VLKHelp.show("keys")
            tryVerify(() => Bench.windowTitled("VLK Ormiva Help") !== null)
            help = Bench.windowTitled("VLK Ormiva Help")
            tryVerify(() => help.viewer !== null)
            compare(shown(), "keys")
            compare(page()[0], "•\t⌘1 to ⌘8 — go to each screen (Go menu)")
            tryVerify(() => Bench.named(help.contentItem, "HelpTopicRow", "Care Calendar"))
            mouseClick(Bench.named(help.contentItem, "HelpTopicRow", "Care Calendar"))
            compare(shown(), "calendar")
        }

        function test_openedAgainItIsTheSameWindowWithAFreshViewer() {
            openHelp("F1")
            const first = help
            Bench.pressInActive("Z")
            compare(help.viewer.query.toLowerCase(), "z")
            VLKHelp.show("credits")
            tryVerify(() => help.viewer !== null && help.viewer.query === "")
            compare(Bench.windowTitled("VLK Ormiva Help"), first)
            compare(shown(), "credits")
            verify(page()[0].startsWith("All care-sheet text is written in our own words"))
        }

        function test_theHelpWindowComesBackWhereItWas() {
            openHelp("F1")
            help.width = 700
            help.height = 500
            tryVerify(() => Bench.preference("VLKHelpWindow").endsWith(" 700 500"))
        }

        function test_aboutSaysWhatTheProgramIs() {
            VLKAbout.show()
            tryVerify(() => Bench.windowTitled("About VLK Ormiva") !== null)
            about = Bench.windowTitled("About VLK Ormiva")
            tryVerify(() => Bench.activeTitle() === about.title)
            compare([about.width, about.height], [440, 380])
            const texts = Bench.texts(about.contentItem, "OMText")
            compare(texts[0], "VLK Ormiva")
            compare(texts[1], VLKAbout.version)
            verify(/^Version \d+\.\d+/.test(texts[1]))
            compare(texts.slice(2, 5), ["One.", "Two.", "Three."])
            compare(texts[5], "by Ventrel (VLK)")
            compare(texts[6], "ventrel.example")
            compare(texts[7], "© " + new Date().getFullYear() + " Ventrel (VLK)")
            VLKAbout.show()
            compare(Bench.windowTitled("About VLK Ormiva"), about)
            mouseClick(Bench.named(about.contentItem, "LinkButton", "ventrel.example"))
            compare(Bench.opened, ["https://ventrel.example"])
            Bench.pressInActive("Esc")
            tryCompare(about, "visible", false)
        }
    }
}
