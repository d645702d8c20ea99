import QtQuick
import Ormiva.Kit
import Ormiva.Screens

// The message that is waiting for the user.
OMAlert {
    title: OMInfo.appName
    message: AppModel.message
    visible: true
    onAccepted: AppModel.dismissMessage()
    onRejected: AppModel.dismissMessage()
}
