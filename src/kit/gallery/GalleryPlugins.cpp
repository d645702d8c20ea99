// Static plugins are only there when somebody names them.
#include <QtQml/QQmlExtensionPlugin>

Q_IMPORT_QML_PLUGIN(Ormiva_GalleryPlugin)
