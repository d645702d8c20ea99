#include "FilePanels.h"

#include "AppModel.h"
#include "BackupFile.h"
#include "OMStore.h"
#include "RecordFiles.h"
#include "WholeFile.h"

namespace ormiva {

namespace {

std::unique_ptr<FilePanels>& sharedPanels() {
    static std::unique_ptr<FilePanels> panels;
    return panels;
}

} // namespace

FileType FileType::backup() {
    return {QStringLiteral("VLK Ormiva backup"), BackupFile::suffix, BackupFile::typeIdentifier};
}

FilePanels* FilePanels::shared() {
    return sharedPanels().get();
}

void FilePanels::setShared(std::unique_ptr<FilePanels> panels) {
    sharedPanels() = std::move(panels);
}

void FilePanels::exportData(const QByteArray& data, const QString& name, const FileType& type,
                            AppModel& model, const OMStore& store) {
    const auto destination = save(name, {type});
    if (!destination)
        return;
    try {
        RecordFiles::refuseAsDestination(*destination, store.url());
        WholeFile::write(*destination, data);
    } catch (const Failure& failure) {
        model.setMessage(QStringLiteral("The file could not be saved: ") + failure.description());
        return;
    }
    reveal(*destination);
}

} // namespace ormiva
