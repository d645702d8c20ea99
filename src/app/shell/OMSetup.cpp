#include "OMSetup.h"

#include "AppModel.h"
#include "CareLibrary.h"
#include "OMHelp.h"
#include "OMInfo.h"
#include "OMStore.h"
#include "OMThemes.h"
#include "VLKAbout.h"
#include "VLKKit.h"
#include "VLKThemes.h"

#include <QMetaObject>

namespace ormiva::OMSetup {

namespace {

/// Runs `task` once the application is up.
void queue(std::function<void()> task) {
    QMetaObject::invokeMethod(&AppModel::shared(), std::move(task), Qt::QueuedConnection);
}

std::unique_ptr<OMStore> openFallback() {
    try {
        return std::make_unique<OMStore>(
            OMInfo::dataFolder() + QStringLiteral("/Pets (opened %1).sqlite").arg(OMDay::today().iso()));
    } catch (const Failure&) { // The message about the records is on its way and says what matters.
        return nullptr;
    }
}

} // namespace

void configure() {
    VLKThemes::setDefaultID(OMThemes::canopyID);
    const CareLibrary& library = CareLibrary::shared();
    VLKKit::install(OMInfo::appName, OMHelp::topics(library), OMThemes::extras());
    VLKAbout::extraLines = {
        QStringLiteral("Care sheets for %1 exotic species, a symptom checker and your pets' records.")
            .arg(library.species().size()),
        QStringLiteral("%1 veterinary, university and zoo sources (checked %2).")
            .arg(library.sources().size())
            .arg(library.sourcesChecked()),
        QStringLiteral(
            "Not a substitute for a veterinarian. Medicine doses are never given — your vet will dose."),
    };
}

void openStore() {
    const QString url = OMInfo::databaseURL();
    try {
        OMStore::setShared(std::make_unique<OMStore>(url));
    } catch (const Failure& failure) {
        OMStore::setShared(openFallback());
        const QString message =
            QStringLiteral(
                "Your pet records could not be opened (%1). The file was left untouched at %2. A new empty "
                "file was opened instead; restore a backup from Settings & Backup.")
                .arg(failure.description(), url);
        queue([message] { AppModel::shared().setMessage(message); });
    }
}

void reportLoadProblems() {
    const QStringList problems = CareLibrary::shared().loadProblems();
    if (problems.isEmpty())
        return;
    constexpr qsizetype shown = 6;
    QString message =
        QStringLiteral("Part of the care library could not be read. Everything else works.\n\n") +
        problems.first(qMin(problems.size(), shown)).join(u'\n');
    if (problems.size() > shown)
        message += QStringLiteral("\nand %1 more").arg(problems.size() - shown);
    queue([message] {
        if (!AppModel::shared().message())
            AppModel::shared().setMessage(message);
    });
}

} // namespace ormiva::OMSetup
