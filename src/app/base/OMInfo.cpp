#include "OMInfo.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace ormiva::OMInfo {

QString dataFolder() {
    QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u'/' + appName;
    QDir().mkpath(folder); // A failure surfaces when something is written there.
    return folder;
}

QString databaseURL() {
    const QString chosen = qEnvironmentVariable("OM_DB_PATH");
    if (!chosen.isEmpty())
        return QFileInfo(chosen).absoluteFilePath();
    return dataFolder() + QStringLiteral("/Pets.sqlite");
}

} // namespace ormiva::OMInfo
