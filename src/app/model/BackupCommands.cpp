#include "BackupCommands.h"

#include "AppModel.h"
#include "BackupFile.h"
#include "FilePanels.h"
#include "OMStore.h"

#include <QFileInfo>

namespace ormiva::BackupCommands {

namespace {

/// "Ormiva backup 2026-11-21.ombackup".
QString defaultName() {
    return QStringLiteral("Ormiva backup %1.%2").arg(OMDay::today().iso(), BackupFile::suffix);
}

QString question(const QMap<QString, qint64>& counts) {
    return QStringLiteral(
               "It holds %1 pets and %2 weights. Your current records will be replaced, after being "
               "saved as a “Before restore” copy in the data folder.")
        .arg(counts.value(QStringLiteral("pet")))
        .arg(counts.value(QStringLiteral("weight")));
}

} // namespace

void backUpNow(AppModel& model, OMStore& store, FilePanels& panels) {
    const auto destination = panels.save(defaultName(), {FileType::backup()});
    if (!destination)
        return;
    model.act([&] {
        store.backup(*destination);
        panels.reveal(*destination);
    });
}

void restore(AppModel& model, OMStore& store, FilePanels& panels) {
    const auto path = panels.open({FileType::backup()}, QStringLiteral("Choose a VLK Ormiva backup"));
    if (!path)
        return;
    QMap<QString, qint64> counts;
    if (!model.act([&] { counts = OMStore::inspectBackup(*path); }))
        return;
    ConfirmRequest request;
    request.title = QStringLiteral("Restore this backup?");
    request.message = question(counts);
    request.button = QStringLiteral("Restore");
    request.action = [&model, &store, path = *path] {
        model.act([&] {
            const QString safetyCopy = store.restore(path);
            model.setPetID(std::nullopt);
            model.setMessage(QStringLiteral("Restored. Your previous records were kept as “%1”.")
                                 .arg(QFileInfo(safetyCopy).fileName()));
        });
    };
    model.setConfirm(std::move(request));
}

} // namespace ormiva::BackupCommands
