import Ormiva.Kit

// The button at the top of a list that adds to it.
VLChromeButton {
    symbol: "plus"
    prominent: true
}
