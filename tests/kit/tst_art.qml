import QtQuick
import QtTest
import Ormiva.Art
import Ormiva.Bench

Item {
    id: root

    width: 400
    height: 300

    HabitatBackground {
        id: habitat

        width: 400
        height: 200
    }
    SpeciesIcon {
        id: icon

        y: 200
        size: 100
        art: "nothing"
        palette: ["ff0000", "0000ff"]
        badge: false
    }
    PetAvatar {
        id: avatar

        x: 100
        y: 200
        size: 100
    }

    TestCase {
        name: "Art"
        when: windowShown

        function init() {
            Bench.reset()
            avatar.pet.speciesID = ""
        }

        function pixel(x, y) {
            return String(grabImage(root).pixel(x, y))
        }

        function test_iconsAreSquaresOfTheirSize() {
            compare(icon.width, 100)
            compare(icon.height, 100)
            compare(avatar.width, 100)
            compare(avatar.height, 100)
        }

        function test_anIconFollowsItsColours() {
            compare(pixel(42, 260), "#ff0000")
            icon.palette = ["00ff00"]
            compare(pixel(42, 260), "#00ff00")
            icon.palette = []
            compare(pixel(42, 260), "#6b8e5a")
            icon.palette = ["ff0000", "0000ff"]
        }

        function test_anAvatarIsGreyUntilItsPetHasASpeciesOfTheLibrary() {
            compare(pixel(150, 250), "#8e8e93")
            avatar.pet.speciesID = "test-gecko"
            verify(pixel(150, 250) !== "#8e8e93")
            avatar.pet.speciesID = "dodo"
            compare(pixel(150, 250), "#8e8e93")
        }

        function test_theHabitatFollowsTheTheme() {
            const before = grabImage(habitat)
            verify(before.equals(grabImage(habitat)))
            Bench.storeTheme("rose-gold")
            verify(!before.equals(grabImage(habitat)))
        }

        function test_onlyTheHabitatKeepsItsPixelsUnderTheZoom() {
            compare(icon.textureSize, Qt.size(100, 100))
            compare(habitat.textureSize, Qt.size(400, 200))
            Bench.storeZoom(2)
            compare(icon.textureSize, Qt.size(200, 200))
            compare(avatar.textureSize, Qt.size(200, 200))
            compare(habitat.textureSize, Qt.size(400, 200))
        }

        function test_nothingHereSpeaksToAScreenReader() {
            for (const item of [habitat, icon, avatar])
                compare(Bench.accessibleName(item), "")
        }
    }
}
