#include "OMSetup.h"

#include "AppModel.h"
#include "CareLibrary.h"
#include "OMInfo.h"
#include "OMStore.h"
#include "OMThemes.h"
#include "Printers.h"
#include "TemporaryFolder.h"
#include "VLKAbout.h"
#include "VLKKit.h"
#include "VLKThemes.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <gtest/gtest.h>
#include <system_error>

namespace ormiva::testing {

namespace {

class OMSetupTest : public ::testing::Test {
protected:
    void SetUp() override {
        m_dataHome = qgetenv("XDG_DATA_HOME");
        qputenv("XDG_DATA_HOME", m_folder.path().toUtf8());
        AppModel::shared().setMessage(std::nullopt);
    }
    void TearDown() override {
        OMStore::setShared(nullptr);
        AppModel::shared().setMessage(std::nullopt);
        qputenv("XDG_DATA_HOME", m_dataHome);
        qunsetenv("OM_DB_PATH");
    }

    QString inDataFolder(const QString& name) const {
        return m_folder.file(QStringLiteral("VLK Ormiva/") + name);
    }
    QString fallbackName() const {
        return QStringLiteral("Pets (opened %1).sqlite").arg(OMDay::today().iso());
    }
    static QString messageOnceUp() {
        EXPECT_EQ(AppModel::shared().message(), std::nullopt); // Not before the application is up.
        QCoreApplication::processEvents();
        return AppModel::shared().message().value_or(QString());
    }
    static QString untouchedMessage(const QString& reason, const QString& path) {
        return QStringLiteral("Your pet records could not be opened (The database reported a problem: ") +
               reason + QStringLiteral("). The file was left untouched at ") + path +
               QStringLiteral(
                   ". A new empty file was opened instead; restore a backup from Settings & Backup.");
    }

    TemporaryFolder m_folder;
    QByteArray m_dataHome;
};

} // namespace

TEST_F(OMSetupTest, ConfigureSetsTheDefaultLookTheKitAndTheAboutLines) {
    OMSetup::configure();
    OMSetup::configure();
    EXPECT_EQ(VLKThemes::defaultID(), QStringLiteral("rainforest-canopy"));
    EXPECT_EQ(VLKKit::appName(), QStringLiteral("VLK Ormiva"));
    EXPECT_EQ(VLKThemes::all().size(), 8);
    // The content that the test's main has made: three species, one source.
    EXPECT_EQ(
        VLKAbout::extraLines,
        (QStringList{
            QStringLiteral("Care sheets for 3 exotic species, a symptom checker and your pets' records."),
            QStringLiteral("%1 veterinary, university and zoo sources (checked %2).")
                .arg(CareLibrary::shared().sources().size())
                .arg(CareLibrary::shared().sourcesChecked()),
            QStringLiteral(
                "Not a substitute for a veterinarian. Medicine doses are never given — your vet will "
                "dose."),
        }));
}

TEST_F(OMSetupTest, TheRecordsOpenInTheDataFolder) {
    OMSetup::openStore();
    ASSERT_NE(OMStore::shared(), nullptr);
    EXPECT_EQ(OMStore::shared()->url(), inDataFolder(QStringLiteral("Pets.sqlite")));
    EXPECT_EQ(messageOnceUp(), QString());
}

TEST_F(OMSetupTest, AnEmptyPathVariableCountsAsAbsent) {
    qputenv("OM_DB_PATH", "");
    OMSetup::openStore();
    ASSERT_NE(OMStore::shared(), nullptr);
    EXPECT_EQ(OMStore::shared()->url(), inDataFolder(QStringLiteral("Pets.sqlite")));
}

TEST_F(OMSetupTest, TheRecordsOpenWhereTheVariableSays) {
    const QString path = m_folder.file(QStringLiteral("elsewhere/my.sqlite"));
    qputenv("OM_DB_PATH", path.toUtf8());
    OMSetup::openStore();
    ASSERT_NE(OMStore::shared(), nullptr);
    EXPECT_EQ(OMStore::shared()->url(), path);
}

TEST_F(OMSetupTest, ADamagedFileIsLeftAndTwoStartsOnADayShareTheFallback) {
    const QString path =
        m_folder.write(QStringLiteral("my.sqlite"), "This is no database at all, only words.");
    qputenv("OM_DB_PATH", path.toUtf8());
    for (int start = 1; start <= 2; ++start) {
        SCOPED_TRACE(start);
        AppModel::shared().setMessage(std::nullopt);
        OMSetup::openStore();
        ASSERT_NE(OMStore::shared(), nullptr);
        EXPECT_EQ(OMStore::shared()->url(), inDataFolder(fallbackName()));
        EXPECT_EQ(messageOnceUp(), untouchedMessage(QStringLiteral("file is not a database"), path));
        EXPECT_EQ(OMStore::shared()->reminders().size(), start - 1);
        Reminder reminder;
        OMStore::shared()->save(reminder);
        OMStore::setShared(nullptr);
    }
    EXPECT_EQ(m_folder.read(QStringLiteral("my.sqlite")), "This is no database at all, only words.");
    EXPECT_EQ(QDir(inDataFolder(QString())).entryList(QDir::Files), QStringList(fallbackName()));
}

TEST_F(OMSetupTest, ANewerFileIsNamedWithItsReason) {
    const QString path = m_folder.file(QStringLiteral("my.sqlite"));
    OMStore(path).db().exec(QStringLiteral("PRAGMA user_version = 2"));
    qputenv("OM_DB_PATH", path.toUtf8());
    OMSetup::openStore();
    EXPECT_EQ(messageOnceUp(),
              untouchedMessage(
                  QStringLiteral("This database was made by a newer version of VLK Ormiva. Please update "
                                 "the app."),
                  path));
}

TEST_F(OMSetupTest, WithoutADataFolderThereIsNoStoreAndTheMessageStillAppears) {
    m_folder.write(QStringLiteral("VLK Ormiva"), "a file where the folder should be");
    OMSetup::openStore();
    EXPECT_EQ(OMStore::shared(), nullptr);
    EXPECT_EQ(messageOnceUp(),
              QStringLiteral(
                  "Your pet records could not be opened (Could not create the folder “%1”: %2."
                  "). The file was left untouched at %1/Pets.sqlite. A new empty file was opened instead; "
                  "restore a backup from Settings & Backup.")
                  .arg(m_folder.file(QStringLiteral("VLK Ormiva")),
                       QString::fromLocal8Bit(std::generic_category().message(ENOTDIR).c_str())));
}

} // namespace ormiva::testing
