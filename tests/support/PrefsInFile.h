#pragma once

#include "OMPrefs.h"
#include "TemporaryFolder.h"

#include <QStandardPaths>

namespace ormiva::testing {

/// Empty preferences in a file of their own, until the end of the scope.
class PrefsInFile {
public:
    PrefsInFile() { OMPrefs::useFile(path()); }
    ~PrefsInFile() {
        OMPrefs::useFile(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                         QStringLiteral("/com.ventrel.ormiva.ini"));
    }
    PrefsInFile(const PrefsInFile&) = delete;
    PrefsInFile& operator=(const PrefsInFile&) = delete;

    QString path() const { return m_folder.file(m_name); }
    /// Goes on with what is on disk, as a new process would: nothing that is only in memory comes along.
    void startAgain() {
        const QByteArray stored = m_folder.read(m_name);
        m_name.prepend(u'x');
        OMPrefs::useFile(m_folder.write(m_name, stored));
    }

private:
    TemporaryFolder m_folder;
    QString m_name = QStringLiteral("prefs.ini");
};

} // namespace ormiva::testing
