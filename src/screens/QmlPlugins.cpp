// Static plugins are only there when somebody names them. This is compiled into each executable.
#include <QtQml/QQmlExtensionPlugin>

Q_IMPORT_QML_PLUGIN(Ormiva_ArtPlugin)
Q_IMPORT_QML_PLUGIN(Ormiva_KitPlugin)
Q_IMPORT_QML_PLUGIN(Ormiva_ScreensPlugin)
