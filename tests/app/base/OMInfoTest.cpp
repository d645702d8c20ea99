#include "OMInfo.h"

#include "Printers.h"
#include "ScopedVariable.h"
#include "TemporaryFolder.h"

#include <QDir>
#include <QFileInfo>

namespace ormiva {
namespace {

using testing::ScopedVariable;
using testing::TemporaryFolder;

TEST(OMInfo, HoldsTheFactsOfTheApplication) {
    EXPECT_EQ(OMInfo::appName, QStringLiteral("VLK Ormiva"));
    EXPECT_EQ(OMInfo::creditLine, QStringLiteral("by Ventrel (VLK)"));
    EXPECT_EQ(OMInfo::poisonPhone, QStringLiteral("(888) 426-4435"));
}

TEST(OMInfo, HoldsTheSafetyTexts) {
    EXPECT_EQ(
        OMInfo::notAVet,
        QStringLiteral("This app is not a substitute for a veterinarian. It lists POSSIBLE causes only and "
                       "never diagnoses. If you are worried about your pet, contact a veterinarian "
                       "experienced with exotic animals."));
    EXPECT_EQ(
        OMInfo::doseNote,
        QStringLiteral("This app never suggests medicine doses — your vet will dose. Record the instructions "
                       "exactly as your vet wrote them."));
}

TEST(OMInfo, HoldsTheAddresses) {
    EXPECT_EQ(OMInfo::website, QUrl(QStringLiteral("https://ventrel.example")));
    EXPECT_EQ(OMInfo::arav, QUrl(QStringLiteral("https://arav.org/find-a-vet/")));
    EXPECT_EQ(OMInfo::aemv, QUrl(QStringLiteral("https://www.aemv.org/")));
    EXPECT_EQ(OMInfo::aav, QUrl(QStringLiteral("https://www.aav.org/")));
    EXPECT_EQ(OMInfo::poisonControl,
              QUrl(QStringLiteral("https://www.aspca.org/pet-care/animal-poison-control")));
}

TEST(OMInfo, MakesTheDataFolderWithItsParents) {
    const TemporaryFolder home;
    const ScopedVariable data("XDG_DATA_HOME", home.file(QStringLiteral("not/yet/there")).toUtf8());
    const QString expected = home.file(QStringLiteral("not/yet/there/VLK Ormiva"));
    EXPECT_EQ(OMInfo::dataFolder(), expected);
    EXPECT_TRUE(QFileInfo(expected).isDir());
}

TEST(OMInfo, MakesTheDataFolderAgainWhenItIsGone) {
    const TemporaryFolder home;
    const ScopedVariable data("XDG_DATA_HOME", home.path().toUtf8());
    const QString folder = OMInfo::dataFolder();
    ASSERT_TRUE(QDir(folder).removeRecursively());
    EXPECT_EQ(OMInfo::dataFolder(), folder);
    EXPECT_TRUE(QFileInfo(folder).isDir());
}

TEST(OMInfo, DoesNotFailWhereTheDataFolderCannotBeMade) {
    const TemporaryFolder home;
    const QString file = home.write(QStringLiteral("file"), "not a folder");
    const ScopedVariable data("XDG_DATA_HOME", file.toUtf8());
    EXPECT_EQ(OMInfo::dataFolder(), file + QStringLiteral("/VLK Ormiva"));
    EXPECT_EQ(home.read(QStringLiteral("file")), QByteArray("not a folder"));
}

class DatabasePlace : public ::testing::Test {
protected:
    QString inDataFolder() const { return m_home.file(QStringLiteral("VLK Ormiva/Pets.sqlite")); }

    TemporaryFolder m_home;
    ScopedVariable m_data{"XDG_DATA_HOME", m_home.path().toUtf8()};
};

TEST_F(DatabasePlace, IsInTheDataFolder) {
    const ScopedVariable unset("OM_DB_PATH", std::nullopt);
    EXPECT_EQ(OMInfo::databaseURL(), inDataFolder());
}

TEST_F(DatabasePlace, IsInTheDataFolderWhenTheVariableIsEmpty) {
    const ScopedVariable empty("OM_DB_PATH", QByteArray(""));
    EXPECT_EQ(OMInfo::databaseURL(), inDataFolder());
}

TEST_F(DatabasePlace, IsWhatTheVariableNames) {
    const QString chosen = m_home.file(QStringLiteral("Gecko & Söhne.sqlite"));
    const ScopedVariable variable("OM_DB_PATH", chosen.toUtf8());
    EXPECT_EQ(OMInfo::databaseURL(), chosen);
}

TEST_F(DatabasePlace, IsAbsoluteForARelativeName) {
    const ScopedVariable variable("OM_DB_PATH", QByteArray("some/Pets.sqlite"));
    EXPECT_EQ(OMInfo::databaseURL(), QDir::currentPath() + QStringLiteral("/some/Pets.sqlite"));
}

} // namespace
} // namespace ormiva
