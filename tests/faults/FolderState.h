#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QString>

#include <ostream>

namespace ormiva::testing {

/// Everything in a folder that a program could change: names, bytes, modes and times of modification.
struct FolderState {
    struct Entry {
        QByteArray bytes;
        QFileDevice::Permissions mode;
        qint64 modified = 0;
        bool isFolder = false;

        friend bool operator==(const Entry&, const Entry&) = default;
    };

    static FolderState of(const QString& folder) {
        FolderState state;
        const QFileInfoList entries =
            QDir(folder).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
        for (const QFileInfo& info : entries) {
            QFile file(info.filePath());
            Entry entry{.bytes = {},
                        .mode = info.permissions(),
                        .modified = info.lastModified().toMSecsSinceEpoch(),
                        .isFolder = info.isDir()};
            if (info.isFile() && file.open(QIODevice::ReadOnly))
                entry.bytes = file.readAll();
            state.entries.insert(info.fileName(), entry);
        }
        return state;
    }

    QMap<QString, Entry> entries;

    friend bool operator==(const FolderState&, const FolderState&) = default;
    friend std::ostream& operator<<(std::ostream& out, const FolderState& state) {
        for (auto it = state.entries.begin(); it != state.entries.end(); ++it)
            out << it.key().toStdString() << " (" << it->bytes.size() << " bytes, hash " << qHash(it->bytes)
                << ", mode " << std::hex << it->mode.toInt() << std::dec << ", " << it->modified << ")\n";
        return out;
    }
};

} // namespace ormiva::testing
