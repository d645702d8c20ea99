import QtQuick
import Ormiva.Kit

// Lets the wheel move what a motor drives. At the end of it the turn is left to what lies around.
WheelHandler {
    required property ScrollMotor motor

    acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
    orientation: Qt.Vertical
    onWheel: event => event.accepted = motor.wheel(event.angleDelta, event.modifiers)
}
