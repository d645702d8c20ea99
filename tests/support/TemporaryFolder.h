#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

namespace ormiva::testing {

/// A folder that is gone with the object. Whatever a test writes goes into one.
class TemporaryFolder {
public:
    TemporaryFolder();

    QString path() const { return m_folder.path(); }
    QString file(const QString& name) const { return m_folder.filePath(name); }
    /// Writes a whole file, making the folders on the way; gives its path.
    QString write(const QString& name, const QByteArray& bytes) const;
    QByteArray read(const QString& name) const;

private:
    QTemporaryDir m_folder;
};

} // namespace ormiva::testing
