#pragma once

#include "FilePanels.h"

namespace ormiva {

/// The desktop's own dialogues for files, and its file manager.
class DesktopFilePanels final : public FilePanels {
public:
    std::optional<QString> save(const QString& name, const QList<FileType>& types) override;
    std::optional<QString> open(const QList<FileType>& types, const QString& message) override;
    /// Asks the file manager of the session; without one that answers, the folder is opened.
    void reveal(const QString& path) override;
};

} // namespace ormiva
