// Backup and restore of the whole store.

#include "BackupFile.h"
#include "OMStore.h"
#include "RecordFiles.h"
#include "StoreFile.h"

#include <QFileInfo>
#include <QUuid>

namespace ormiva {

namespace {

/// "Before restore {stamp}.sqlite" beside the store's file, and never the file that is being restored.
QString safetyCopyPath(const QString& storePath, const QString& restored, const Files& files) {
    for (Instant stamp = UserCalendar::now();; stamp += std::chrono::seconds(1)) {
        const UserCalendar::Fields at = UserCalendar::fields(stamp);
        const QString name = QString::asprintf("Before restore %04lld-%02d-%02d %02d%02d%02d.sqlite",
                                               static_cast<long long>(at.year), at.month, at.day, at.hour,
                                               at.minute, at.second);
        const QString path = QFileInfo(storePath).absolutePath() + u'/' + name;
        if (!files.areSame(path, restored))
            return path;
    }
}

void removeSiblings(const QString& path, const Files& files) {
    for (const QString& suffix : RecordFiles::siblingSuffixes())
        files.removeIfPossible(path + suffix);
}

QString uuid() {
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
}

/// The replaced file once more in its place: the file itself, else as the safety copy has it. When neither is
/// possible, opening the file tells how things stand.
void putBack(const QString& live, const QString& replaced, const QString& safetyCopy, const Files& files) {
    removeSiblings(live, files); // They belong to the file that failed.
    try {
        files.rename(replaced, live);
        files.syncFolderOf(live);
        return;
    } catch (const FileError&) {
    }
    const QString copy = QFileInfo(live).absolutePath() + QStringLiteral("/restore-%1.sqlite").arg(uuid());
    try {
        files.copy(safetyCopy, copy);
        files.rename(copy, live);
        files.syncFolderOf(live);
    } catch (const FileError&) {
        files.removeIfPossible(copy);
    }
}

} // namespace

void OMStore::backup(const QString& destination, const Files& files) {
    RecordFiles::refuseAsDestination(destination, m_url, files);
    BackupFile::write(*m_db, destination, files);
}

QMap<QString, qint64> OMStore::inspectBackup(const QString& path) {
    return BackupFile::inspect(path);
}

QString OMStore::restore(const QString& path, const Files& files) {
    inspectBackup(path);

    const QString safetyCopy = safetyCopyPath(m_url, path, files);
    BackupFile::write(*m_db, safetyCopy, files);

    const QString live = realPath();
    const QString folder = QFileInfo(live).absolutePath();
    const QString incoming = folder + QStringLiteral("/restore-%1.sqlite").arg(uuid());
    const QString replaced = folder + QStringLiteral("/replaced-%1.sqlite").arg(uuid());
    BackupFile::copy(path, incoming, files);

    m_db->close();
    removeSiblings(live, files);
    bool isInPlace = false;
    try {
        files.keep(live, replaced);
        files.rename(incoming, live);
        isInPlace = true;
        files.syncFolderOf(live);
        reopen(live, files);
        StoreFile::migrate(*m_db);
    } catch (const Failure& failure) {
        m_db->close();
        if (isInPlace)
            putBack(live, replaced, safetyCopy, files);
        else
            files.removeIfPossible(replaced); // Only a second name of the file that is still in its place.
        reopen(live, files);
        changed();
        throw OMError::badBackup(
            QStringLiteral("the copy could not be put in place (%1). Your data was left as it was.")
                .arg(failure.description()));
    }
    files.removeIfPossible(replaced);
    changed();
    return safetyCopy;
}

QString OMStore::realPath() const {
    const QString real = QFileInfo(m_url).canonicalFilePath();
    return real.isEmpty() ? m_url : real;
}

void OMStore::reopen(const QString& path, const Files& files) {
    if (!files.exists(path)) // SQLite would make an empty file.
        throw OMError::database(QStringLiteral("unable to open database file"));
    m_db = std::make_unique<SQLiteDB>(path);
    m_durable = false;
}

} // namespace ormiva
