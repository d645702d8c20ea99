#include "Files.h"

#include "Failure.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <utility>

namespace ormiva {

namespace {

const QString couldNotRead = QStringLiteral("Could not read");
const QString couldNotWrite = QStringLiteral("Could not write");

QByteArray native(const QString& path) {
    return QFile::encodeName(path);
}

} // namespace

/// An open file, closed at the end of the scope.
class Files::Open {
public:
    Open(SystemCalls& system, const QString& path, int flags, const QString& doing)
        : m_system(system)
        , m_path(path)
        , m_doing(doing)
        , m_file(system.open(native(path).constData(), flags | O_CLOEXEC, 0600)) {
        if (m_file < 0)
            fail();
    }
    ~Open() {
        if (m_file >= 0)
            m_system.close(m_file);
    }
    Open(const Open&) = delete;
    Open& operator=(const Open&) = delete;

    /// As much as there is, up to `bytes`; 0 at the end.
    std::size_t read(QByteArray& bytes) {
        for (;;) {
            const ssize_t got = m_system.read(m_file, bytes.data(), static_cast<std::size_t>(bytes.size()));
            if (got >= 0)
                return static_cast<std::size_t>(got);
            if (errno != EINTR)
                fail();
        }
    }

    void write(const char* bytes, std::size_t size) {
        while (size > 0) {
            const ssize_t put = m_system.write(m_file, bytes, size);
            if (put < 0 && errno == EINTR)
                continue;
            if (put == 0)
                errno = ENOSPC;
            if (put <= 0)
                fail();
            bytes += put;
            size -= static_cast<std::size_t>(put);
        }
    }

    void sync() {
        if (m_system.fsync(m_file) != 0 && errno != EINVAL) // Not every file system can sync a folder.
            fail();
    }

    /// Reports what only closing finds out, as on a network drive.
    void close() {
        if (m_system.close(std::exchange(m_file, -1)) != 0)
            fail();
    }

private:
    [[noreturn]] void fail() const { throw FileError::fromErrno(m_doing, m_path, errno); }

    SystemCalls& m_system;
    QString m_path;
    QString m_doing;
    int m_file;
};

bool Files::exists(const QString& path) const {
    struct stat found {};
    return m_system.stat(native(path).constData(), &found) == 0;
}

bool Files::isFolder(const QString& path) const {
    struct stat found {};
    return m_system.stat(native(path).constData(), &found) == 0 && S_ISDIR(found.st_mode);
}

bool Files::areSame(const QString& a, const QString& b) const {
    struct stat first {};
    struct stat second {};
    return m_system.stat(native(a).constData(), &first) == 0 &&
           m_system.stat(native(b).constData(), &second) == 0 && first.st_dev == second.st_dev &&
           first.st_ino == second.st_ino;
}

void Files::create(const QString& path) const {
    Open(m_system, path, O_WRONLY | O_CREAT | O_EXCL, couldNotWrite).close();
}

void Files::write(const QString& path, const QByteArray& bytes) const {
    Open file(m_system, path, O_WRONLY | O_CREAT | O_EXCL, couldNotWrite);
    file.write(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    file.sync();
    file.close();
}

void Files::copy(const QString& from, const QString& to) const {
    constexpr qsizetype chunk = 1 << 20;
    Open source(m_system, from, O_RDONLY, couldNotRead);
    Open target(m_system, to, O_WRONLY | O_CREAT | O_EXCL, couldNotWrite);
    QByteArray bytes(chunk, Qt::Uninitialized);
    while (const std::size_t size = source.read(bytes))
        target.write(bytes.constData(), size);
    target.sync();
    target.close();
}

void Files::keep(const QString& from, const QString& to) const {
    if (m_system.link(native(from).constData(), native(to).constData()) == 0)
        return;
    switch (errno) {
    case ENOENT:
        return;
    case EPERM: // No links on this file system, or not of this file.
    case EOPNOTSUPP:
    case ENOSYS:
    case EMLINK:
        return copy(from, to);
    default:
        throw FileError::fromErrno(couldNotWrite, to, errno);
    }
}

void Files::rename(const QString& from, const QString& to) const {
    if (m_system.rename(native(from).constData(), native(to).constData()) != 0)
        throw FileError::fromErrno(QStringLiteral("Could not replace"), to, errno);
}

void Files::sync(const QString& path) const {
    Open file(m_system, path, O_RDONLY, couldNotWrite);
    file.sync();
    file.close();
}

void Files::syncFolderOf(const QString& path) const {
    sync(QFileInfo(path).absolutePath());
}

void Files::removeIfPossible(const QString& path) const {
    m_system.unlink(native(path).constData());
}

} // namespace ormiva
