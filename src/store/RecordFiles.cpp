#include "RecordFiles.h"

#include "OMError.h"
#include "OMInfo.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace ormiva::RecordFiles {

namespace {

/// The database and what may stand beside it, now or later.
QStringList withSiblings(const QString& path) {
    QStringList paths = {path};
    for (const QString& suffix : siblingSuffixes())
        paths.append(path + suffix);
    return paths;
}

/// The copies of the records that were kept in a folder.
QStringList keptCopies(const QString& folder) {
    QStringList paths;
    for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files | QDir::Hidden | QDir::System))
        if (file.fileName().startsWith(QStringLiteral("Before restore ")) ||
            file.fileName().startsWith(QStringLiteral("Pets (opened ")))
            paths.append(file.filePath());
    return paths;
}

QStringList protectedFiles(const QString& storePath) {
    QStringList paths;
    for (const QString& records : {storePath, OMInfo::databaseURL()}) {
        paths += withSiblings(records);
        if (const QString real = QFileInfo(records).canonicalFilePath(); !real.isEmpty())
            paths += withSiblings(real);
        paths += keptCopies(QFileInfo(records).absolutePath());
    }
    return paths + keptCopies(OMInfo::dataFolder());
}

/// True for two names of one place, also where nothing is yet.
bool isSamePlace(const QString& a, const QString& b, const Files& files) {
    const QFileInfo first(a);
    const QFileInfo second(b);
    return files.areSame(a, b) || (first.fileName() == second.fileName() &&
                                   files.areSame(first.absolutePath(), second.absolutePath()));
}

} // namespace

const QStringList& siblingSuffixes() {
    static const QStringList suffixes = {QStringLiteral("-journal"), QStringLiteral("-wal"),
                                         QStringLiteral("-shm")};
    return suffixes;
}

void refuseAsDestination(const QString& destination, const QString& storePath, const Files& files) {
    if (files.isFolder(destination))
        throw OMError::invalid(QStringLiteral("Please choose another place: this is a folder."));
    if (std::ranges::any_of(protectedFiles(storePath),
                            [&](const QString& path) { return isSamePlace(destination, path, files); }))
        throw OMError::invalid(QStringLiteral("Please choose another place: this file holds your records."));
}

} // namespace ormiva::RecordFiles
