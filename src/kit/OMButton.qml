import QtQuick
import QtQuick.Templates as T

// What all buttons have in common: hovering, the focus by Tab, and Return as well as Space to press them.
T.AbstractButton {
    id: button

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    Accessible.name: text // Said here, since Qt sets it only for buttons made after a reader has come.

    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
}
