import Ormiva.Kit

// The menu of the library's species.
OMChoice {
    property alias species: list.species
    property alias allowNone: list.allowNone
    property alias noneTitle: list.noneTitle

    choices: SpeciesChoices {
        id: list
    }
}
