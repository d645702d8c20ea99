#include "WholeFile.h"

#include <QFileInfo>
#include <QUuid>

namespace ormiva::WholeFile {

QString temporaryName(const QString& path) {
    return QFileInfo(path).absolutePath() + QStringLiteral("/.ormiva-") +
           QUuid::createUuid().toString(QUuid::WithoutBraces) + QStringLiteral(".part");
}

void write(const QString& path, const QByteArray& bytes, const Files& files) {
    const QString temporary = temporaryName(path);
    try {
        files.write(temporary, bytes);
        files.rename(temporary, path);
        files.syncFolderOf(path);
    } catch (...) {
        files.removeIfPossible(temporary);
        throw;
    }
}

} // namespace ormiva::WholeFile
