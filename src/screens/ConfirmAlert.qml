import QtQuick
import Ormiva.Kit
import Ormiva.Screens

// The question that is waiting for the user.
OMAlert {
    title: AppModel.confirmTitle
    message: AppModel.confirmMessage
    buttonTitle: AppModel.confirmButton
    cancelTitle: qsTr("Cancel")
    destructive: true
    visible: true
    onAccepted: AppModel.answerConfirm(true)
    onRejected: AppModel.answerConfirm(false)
}
