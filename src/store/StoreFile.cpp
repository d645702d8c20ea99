#include "StoreFile.h"

#include "Failure.h"
#include "OMError.h"
#include "StoreSchema.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <filesystem>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ormiva::StoreFile {

namespace {

/// What SQLite leaves beside a file that it did not close. A -shm alone means nothing; SQLite makes it anew.
constexpr std::array<QLatin1String, 2> siblingSuffixes = {QLatin1String("-journal"), QLatin1String("-wal")};

bool exists(const QString& path) {
    struct stat ignored {};
    return ::lstat(QFile::encodeName(path).constData(), &ignored) == 0;
}

bool hasSibling(const QString& path) {
    return std::any_of(siblingSuffixes.begin(), siblingSuffixes.end(),
                       [&](QLatin1String suffix) { return exists(path + suffix); });
}

void makeFolder(const QString& folder) {
    std::error_code error;
    std::filesystem::create_directories(folder.toStdU16String(), error);
    if (error)
        throw FileError::fromErrno(QStringLiteral("Could not create the folder"), folder, error.value());
}

/// An empty file, before SQLite would make it for everybody to read. SQLite gives the siblings its mode.
void createPrivately(const QString& path) {
    makeFolder(QFileInfo(path).absolutePath());
    const int file =
        ::open(QFile::encodeName(path).constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0600);
    if (file >= 0)
        ::close(file);
    // Whatever went wrong with the file goes wrong again when SQLite opens it, and is reported there.
}

/// Takes the right to read the file from everybody but the user. Not every file system knows modes; the
/// records are kept all the same.
void makePrivate(const QString& path, mode_t mode) {
    if ((mode & 0077) != 0)
        ::chmod(QFile::encodeName(path).constData(), 0600);
}

enum class Standing { Empty, Ours };

/// The number in the one row of `sql`. Throws where `SQLiteDB::scalarInt` gives 0: here an unreadable number
/// must not look like one.
qint64 readNumber(SQLiteDB& db, const QString& sql) {
    const QList<SQLRow> rows = db.query(sql);
    return rows.isEmpty() ? 0 : integerOf(rows.first().values.begin()->second).value_or(0);
}

/// Whether the file is new or ours; throws when it is neither. Writes nothing.
Standing standing(SQLiteDB& db) {
    const qint64 version = readNumber(db, QStringLiteral("PRAGMA user_version"));
    if (version > StoreSchema::version)
        throw OMError::database(QStringLiteral(
            "This database was made by a newer version of VLK Ormiva. Please update the app."));
    if (version != 0)
        return Standing::Ours;
    if (readNumber(db, QStringLiteral("SELECT count(*) FROM sqlite_master WHERE type='table'")) != 0)
        throw OMError::database(QStringLiteral("This file is not a VLK Ormiva database."));
    return Standing::Empty;
}

void copyOrThrow(const QString& from, const QString& to) {
    QFile source(from);
    if (!source.copy(to))
        throw FileError(
            QStringLiteral("“%1” could not be copied for a check: %2.").arg(from, source.errorString()));
}

/// Judges a copy of the file with its siblings, where SQLite may write as it likes.
void judgeFromCopy(const QString& path) {
    const QTemporaryDir folder;
    if (!folder.isValid())
        throw FileError(QStringLiteral("A folder for checking the records could not be made: %1.")
                            .arg(folder.errorString()));
    const QString copy = folder.filePath(QStringLiteral("copy.sqlite"));
    copyOrThrow(path, copy);
    for (const QLatin1String suffix : siblingSuffixes)
        if (exists(path + suffix))
            copyOrThrow(path + suffix, copy + suffix);
    SQLiteDB db(copy);
    standing(db);
}

/// Back to a rollback journal: backup, inspection and restore rely on one file.
void leaveWalMode(SQLiteDB& db) {
    try {
        db.exec(QStringLiteral("PRAGMA journal_mode = DELETE"));
    } catch (const OMError&) {
        // Somebody else has the file open; it works as it is, and the next start tries again.
    }
}

/// A file that was there before.
std::unique_ptr<SQLiteDB> openExisting(const QString& path, const struct stat& file) {
    const bool regular = S_ISREG(file.st_mode);
    // SQLite takes a file of one byte for an empty one, and would write over that byte.
    if (regular && file.st_size == 1)
        throw OMError::database(QStringLiteral("file is not a database"));
    // With a journal SQLite would roll back, in WAL mode it would make and fill siblings, both before we know
    // whose file it is. Reading any other file writes nothing.
    const bool wal = regular && isInWalMode(path);
    if (regular && (wal || hasSibling(path)))
        judgeFromCopy(path);

    auto db = std::make_unique<SQLiteDB>(path);
    migrate(*db);
    makePrivate(path, file.st_mode);
    if (wal)
        leaveWalMode(*db);
    return db;
}

} // namespace

std::unique_ptr<SQLiteDB> open(const QString& path) {
    struct stat file {};
    const bool there = ::lstat(QFile::encodeName(path).constData(), &file) == 0;
    // SQLite looks for the siblings beside the file that a link leads to.
    if (there && S_ISLNK(file.st_mode))
        if (const QString real = QFileInfo(path).canonicalFilePath(); !real.isEmpty())
            return open(real);
    if (there)
        return openExisting(path, file);
    createPrivately(path);
    auto db = std::make_unique<SQLiteDB>(path);
    migrate(*db);
    return db;
}

bool isInWalMode(const QString& path) {
    const int file = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (file < 0)
        return false; // What can't be read is refused by SQLite.
    // Offsets 18 and 19 of the header: write and read version, 2 for WAL.
    std::array<char, 20> header{};
    const bool whole = ::read(file, header.data(), header.size()) == static_cast<ssize_t>(header.size());
    ::close(file);
    return whole && (header[18] == 2 || header[19] == 2);
}

void migrate(SQLiteDB& db) {
    if (standing(db) == Standing::Ours)
        return;
    makeDurable(db);
    db.transaction([&] { db.exec(StoreSchema::sql()); });
    db.exec(QStringLiteral("PRAGMA application_id = ") + QString::number(StoreSchema::applicationID));
    db.exec(QStringLiteral("PRAGMA user_version = ") + QString::number(StoreSchema::version));
}

void makeDurable(SQLiteDB& db) {
    db.exec(QStringLiteral("PRAGMA synchronous = EXTRA"));
}

QString damage(const QString& path) {
    try {
        SQLiteDB db(path, true);
        try {
            const QList<SQLRow> rows = db.query(QStringLiteral("PRAGMA quick_check(1)"));
            const QString first =
                rows.isEmpty() ? QString() : rows.first().str(QStringLiteral("quick_check"));
            return first == QStringLiteral("ok") ? QString() : first;
        } catch (const OMError& error) {
            const int code = db.lastErrorCode();
            return code == SQLITE_CORRUPT || code == SQLITE_NOTADB ? error.payload() : QString();
        }
    } catch (const OMError&) {
        // The file is gone or can't be opened a second time: nothing is known to be wrong.
        return {};
    }
}

} // namespace ormiva::StoreFile
