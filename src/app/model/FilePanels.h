#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

namespace ormiva {

class AppModel;
class OMStore;

/// A kind of file that a panel offers.
struct FileType {
    QString name;                   ///< for the user
    QString suffix;                 ///< without the dot; what a new file gets
    QString identifier;             ///< under which the system knows it
    QStringList otherSuffixes = {}; ///< that files of this kind may have as well, without the dot

    static FileType backup();
    /// All suffixes, the one of new files first.
    QStringList suffixes() const { return QStringList(suffix) + otherSuffixes; }

    friend bool operator==(const FileType&, const FileType&) = default;
};

/// Where the user chooses files. The desktop's dialogues stand behind it, and in tests a script.
class FilePanels {
public:
    /// The panels of this run; null when there are none.
    static FilePanels* shared();
    static void setShared(std::unique_ptr<FilePanels> panels);

    FilePanels() = default;
    virtual ~FilePanels() = default;
    FilePanels(const FilePanels&) = delete;
    FilePanels& operator=(const FilePanels&) = delete;

    /// Asks where to save, offering `name`; absent when the user didn't confirm. The result ends in a
    /// suffix of one of `types`, and the user has agreed to replace a file that is there.
    virtual std::optional<QString> save(const QString& name, const QList<FileType>& types) = 0;
    /// Asks for one file that exists; absent when the user didn't confirm.
    virtual std::optional<QString> open(const QList<FileType>& types, const QString& message) = 0;
    /// Shows a file in the desktop's file manager.
    virtual void reveal(const QString& path) = 0;

    /// Asks where to save, writes `data` there whole or not at all and reveals the file. A failure becomes
    /// the message of `model`. `store` is the one whose files must not be overwritten.
    void exportData(const QByteArray& data, const QString& name, const FileType& type, AppModel& model,
                    const OMStore& store);
};

} // namespace ormiva
