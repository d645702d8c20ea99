#pragma once

#include "SystemCalls.h"

#include <QByteArray>
#include <QString>

namespace ormiva {

/// Whole files, handled so that a failure is noticed and what was written lasts. Every operation throws
/// FileError with the system's own words unless it says otherwise. New files can be read by the user alone.
class Files {
public:
    explicit Files(SystemCalls& system = SystemCalls::real())
        : m_system(system) {}

    /// True for whatever a path leads to, links followed.
    bool exists(const QString& path) const;
    bool isFolder(const QString& path) const;
    /// True when both paths lead to the same file, by whatever names and links.
    bool areSame(const QString& a, const QString& b) const;

    /// Makes an empty file; fails when there is one.
    void create(const QString& path) const;
    /// Makes a file with these bytes and syncs it; fails when there is one.
    void write(const QString& path, const QByteArray& bytes) const;
    /// Makes a copy and syncs it; fails when there is a file at `to`.
    void copy(const QString& from, const QString& to) const;
    /// Gives the file a second name; a copy where the file system has no second names. Nothing happens when
    /// `from` is missing.
    void keep(const QString& from, const QString& to) const;
    /// Moves a file to a place in the same folder in one step; a file that is there is replaced.
    void rename(const QString& from, const QString& to) const;
    void sync(const QString& path) const;
    /// Makes what happened to the names in a file's folder last.
    void syncFolderOf(const QString& path) const;
    /// Removes a file as far as that is possible; never throws.
    void removeIfPossible(const QString& path) const;

private:
    class Open;
    SystemCalls& m_system;
};

} // namespace ormiva
