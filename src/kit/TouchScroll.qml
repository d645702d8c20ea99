import QtQuick
import Ormiva.Kit

// Lets a finger move what a motor drives; the mouse is left to select text.
DragHandler {
    required property ScrollMotor motor
    property real followed: 0

    acceptedDevices: PointerDevice.TouchScreen
    target: null
    onActiveChanged: followed = 0
    onActiveTranslationChanged: {
        motor.move(0, followed - activeTranslation.y)
        followed = activeTranslation.y
    }
}
