import Ormiva.Kit

// The menu of the pets.
OMChoice {
    property alias petID: list.petID
    property alias allowNone: list.allowNone
    property alias noneTitle: list.noneTitle

    choices: PetChoices {
        id: list
    }
}
