#pragma once

#include "FilePanels.h"

#include <QStringList>

namespace ormiva::testing {

/// Panels whose user has decided beforehand.
class ScriptedPanels : public FilePanels {
public:
    std::optional<QString> answer; ///< what both panels give; absent: cancelled
    QStringList asked;             ///< "save {name} .{suffix}", "open .{suffix} {message}"
    QStringList revealed;

    std::optional<QString> save(const QString& name, const QList<FileType>& types) override {
        asked.append(QStringLiteral("save ") + name + suffixes(types));
        return answer;
    }
    std::optional<QString> open(const QList<FileType>& types, const QString& message) override {
        asked.append(QStringLiteral("open") + suffixes(types) + u' ' + message);
        return answer;
    }
    void reveal(const QString& path) override { revealed.append(path); }

private:
    static QString suffixes(const QList<FileType>& types) {
        QString text;
        for (const FileType& type : types)
            text += QStringLiteral(" .") + type.suffix;
        return text;
    }
};

} // namespace ormiva::testing
