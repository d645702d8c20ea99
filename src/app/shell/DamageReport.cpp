#include "DamageReport.h"

#include "AppModel.h"
#include "OMStore.h"
#include "StoreFile.h"

#include <QMetaObject>
#include <QQuickWindow>
#include <QThreadPool>

namespace ormiva::DamageReport {

namespace {

/// There is one message at a time, and one that waits already may be about the records too: both are shown.
void tell() {
    const QString sentence = QStringLiteral(
        "Your pet records file is damaged. Nothing was changed. Restore a backup from Settings & Backup.");
    const auto waiting = AppModel::shared().message();
    AppModel::shared().setMessage(waiting ? *waiting + QStringLiteral("\n\n") + sentence : sentence);
}

void check(const QString& path) {
    if (!StoreFile::damage(path).isEmpty())
        QMetaObject::invokeMethod(&AppModel::shared(), tell, Qt::QueuedConnection);
}

} // namespace

void afterFirstFrame(QQuickWindow& window, OMStore* store) {
    if (!store)
        return;
    const QString path = store->url();
    QObject::connect(
        &window, &QQuickWindow::frameSwapped, &AppModel::shared(),
        [path] { QThreadPool::globalInstance()->start([path] { check(path); }); },
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
}

} // namespace ormiva::DamageReport
