#include "DamageReport.h"

#include "AppModel.h"
#include "OMStore.h"
#include "Printers.h"
#include "TemporaryFolder.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QQuickWindow>
#include <QThreadPool>

#include <gtest/gtest.h>

namespace ormiva::testing {

namespace {

const QString damaged = QStringLiteral(
    "Your pet records file is damaged. Nothing was changed. Restore a backup from Settings & Backup.");

class DamageReportTest : public ::testing::Test {
protected:
    void SetUp() override {
        QQuickWindow::setSceneGraphBackend(QStringLiteral("software"));
        AppModel::shared().setMessage(std::nullopt);
    }
    void TearDown() override { AppModel::shared().setMessage(std::nullopt); }

    /// A file of ours; with `flip` every page but the first is damaged.
    QByteArray makeRecords(bool flip) {
        {
            OMStore store(m_path);
            for (int i = 0; i < 50; ++i) {
                Reminder reminder;
                reminder.title = QString(500, u'x');
                store.save(reminder);
            }
        }
        QByteArray bytes = m_folder.read(QStringLiteral("Pets.sqlite"));
        EXPECT_GT(bytes.size(), 10 * 4096);
        for (qsizetype page = 4096; flip && page < bytes.size(); page += 4096)
            bytes[page] = static_cast<char>(bytes.at(page) ^ 0xff);
        m_folder.write(QStringLiteral("Pets.sqlite"), bytes);
        return bytes;
    }

    /// Shows a window and waits until its first frame has been seen and the check is over.
    static void showWindowAndWait(OMStore* store) {
        QQuickWindow window;
        bool framed = false;
        QObject::connect(&window, &QQuickWindow::frameSwapped, &window, [&framed] { framed = true; });
        DamageReport::afterFirstFrame(window, store);
        EXPECT_EQ(QThreadPool::globalInstance()->activeThreadCount(), 0);
        window.resize(100, 100);
        window.show();
        QElapsedTimer timer;
        timer.start();
        while (!framed && !timer.hasExpired(10'000))
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        EXPECT_TRUE(framed);
        QCoreApplication::processEvents(); // The check is started by a queued call …
        EXPECT_TRUE(QThreadPool::globalInstance()->waitForDone(10'000));
        QCoreApplication::processEvents(); // … and so is its report.
    }

    TemporaryFolder m_folder;
    const QString m_path = m_folder.file(QStringLiteral("Pets.sqlite"));
};

} // namespace

TEST_F(DamageReportTest, ADamagedFileIsReportedAndLeft) {
    const QByteArray before = makeRecords(true);
    OMStore store(m_path);
    showWindowAndWait(&store);
    EXPECT_EQ(AppModel::shared().message(), damaged);
    EXPECT_EQ(m_folder.read(QStringLiteral("Pets.sqlite")), before);
}

TEST_F(DamageReportTest, AMessageThatWaitsIsKept) {
    makeRecords(true);
    OMStore store(m_path);
    AppModel::shared().setMessage(QStringLiteral("Something else."));
    showWindowAndWait(&store);
    EXPECT_EQ(AppModel::shared().message(), QStringLiteral("Something else.\n\n") + damaged);
}

TEST_F(DamageReportTest, ASoundFileIsNothingToReport) {
    makeRecords(false);
    OMStore store(m_path);
    showWindowAndWait(&store);
    EXPECT_EQ(AppModel::shared().message(), std::nullopt);
}

TEST_F(DamageReportTest, WithoutAStoreThereIsNothingToCheck) {
    showWindowAndWait(nullptr);
    EXPECT_EQ(AppModel::shared().message(), std::nullopt);
}

} // namespace ormiva::testing
