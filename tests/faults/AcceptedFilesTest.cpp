// Files of ours open in whatever state a crash left them, and nothing in them can crash the program.

#include "FolderState.h"
#include "MadeDatabases.h"
#include "OMStore.h"
#include "Printers.h"
#include "StoreFile.h"

#include <QRandomGenerator>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace ormiva::testing {

namespace {

class AcceptedFiles : public ::testing::Test {
protected:
    QStringList names() const { return FolderState::of(m_folder.path()).entries.keys(); }

    QTemporaryDir m_folder;
    const QString path = m_folder.filePath(QStringLiteral("Pets.sqlite"));
    const QStringList oneFile = {QStringLiteral("Pets.sqlite")};
};

QString textOf(SQLiteDB& db, const QString& pragma) {
    const QList<SQLRow> rows = db.query(QStringLiteral("PRAGMA ") + pragma);
    return rows.isEmpty() ? QString() : rows.first().str(pragma);
}

} // namespace

TEST_F(AcceptedFiles, ANewFileIsReadableByTheUserAlone) {
    const auto previous = umask(0);
    {
        OMStore store(path);
        store.db().exec(QStringLiteral("BEGIN; INSERT INTO pet (name, species_id) VALUES ('a', 'b')"));
        for (const QString& name : names())
            EXPECT_EQ(QFile(m_folder.filePath(name)).permissions() & ~(QFile::ReadUser | QFile::WriteUser),
                      QFile::ReadOwner | QFile::WriteOwner)
                << name.toStdString();
        EXPECT_EQ(names(),
                  (QStringList{QStringLiteral("Pets.sqlite"), QStringLiteral("Pets.sqlite-journal")}));
    }
    umask(previous);
}

TEST_F(AcceptedFiles, AnOlderFileBecomesReadableByTheUserAlone) {
    MadeDatabases::ours(path);
    ASSERT_TRUE(QFile(path).setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup |
                                           QFile::ReadOther));
    const OMStore store(path);
    EXPECT_EQ(QFile(path).permissions() & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
}

TEST_F(AcceptedFiles, WritesAreDurable) {
    OMStore store(path);
    store.setChecked(1, OMDay::today(), QStringLiteral("Water"), false);
    EXPECT_EQ(textOf(store.db(), QStringLiteral("synchronous")), QStringLiteral("3")); // EXTRA
    EXPECT_EQ(textOf(store.db(), QStringLiteral("journal_mode")), QStringLiteral("delete"));
    EXPECT_EQ(textOf(store.db(), QStringLiteral("foreign_keys")), QStringLiteral("1"));
}

TEST_F(AcceptedFiles, AStoresFirstWriteMayStandInATransaction) {
    OMStore store(path);
    store.db().transaction([&] {
        Reminder reminder;
        store.save(reminder);
    });
    EXPECT_EQ(store.reminders().size(), 1);
}

TEST_F(AcceptedFiles, OursWithAPendingWalBecomesOneFileWithAllInIt) {
    MadeDatabases::ours(path);
    MadeDatabases::leavePendingWal(path);
    {
        OMStore store(path);
        EXPECT_EQ(store.db().scalarInt(QStringLiteral("SELECT count(*) FROM only_in_wal")), 1);
        EXPECT_EQ(store.weights(1).size(), 40);
        EXPECT_EQ(textOf(store.db(), QStringLiteral("journal_mode")), QStringLiteral("delete"));
    }
    EXPECT_EQ(names(), oneFile);
}

TEST_F(AcceptedFiles, OursWithAHotJournalIsTakenBackToTheLastSave) {
    MadeDatabases::ours(path);
    const QString digest = OMStore(path).digest();
    MadeDatabases::leaveHotJournal(path, "UPDATE weight SET note = note || note; DELETE FROM pet");
    {
        OMStore store(path);
        EXPECT_EQ(store.digest(), digest);
    }
    EXPECT_EQ(names(), oneFile);
}

TEST_F(AcceptedFiles, AnEmptyFileIsANewOne) {
    MadeDatabases::write(path, {});
    OMStore store(path);
    EXPECT_EQ(store.counts().size(), 8);
    EXPECT_EQ(store.db().scalarInt(QStringLiteral("PRAGMA user_version")), 1);
}

TEST_F(AcceptedFiles, ASecondOpeningChangesNothing) {
    MadeDatabases::ours(path);
    const FolderState before = FolderState::of(m_folder.path());
    {
        OMStore store(path);
        EXPECT_EQ(store.pets().size(), 1);
    }
    EXPECT_EQ(FolderState::of(m_folder.path()), before);
}

TEST_F(AcceptedFiles, AnotherApplicationIdIsNoReasonToRefuse) {
    MadeDatabases::ours(path);
    MadeDatabases::exec(path, "PRAGMA application_id = 7");
    EXPECT_EQ(OMStore(path).pets().size(), 1);
}

TEST_F(AcceptedFiles, DamageBeyondTheFirstPageOpensAndIsFound) {
    MadeDatabases::ours(path);
    EXPECT_EQ(StoreFile::damage(path), QString());
    const qint64 pages = MadeDatabases::bytes(path).size() / 4096;
    ASSERT_GT(pages, 10);
    for (qint64 page = 1; page < pages; ++page) // The type byte of each b-tree page, and some of its header.
        MadeDatabases::flipByte(path, page * 4096);
    const FolderState damaged = FolderState::of(m_folder.path());
    {
        OMStore store(path);
        EXPECT_TRUE(store.pets().isEmpty());
        EXPECT_EQ(store.digest().size(), 64);
        EXPECT_NE(StoreFile::damage(path), QString());
        Pet pet;
        pet.name = QStringLiteral("Luna");
        pet.speciesID = QStringLiteral("rabbit");
        EXPECT_THROW(store.save(pet), OMError);
    }
    EXPECT_EQ(FolderState::of(m_folder.path()), damaged);
}

TEST_F(AcceptedFiles, DamageCanNotBeToldOfAFileThatIsGone) {
    EXPECT_EQ(StoreFile::damage(path), QString());
    EXPECT_TRUE(names().isEmpty());
}

TEST_F(AcceptedFiles, NoFlippedByteCrashesAnything) {
    MadeDatabases::ours(path);
    const QByteArray sound = MadeDatabases::bytes(path);
    QRandomGenerator random(20260307);
    int opened = 0;
    for (int round = 0; round < 300; ++round) {
        QByteArray bytes = sound;
        for (int flips = 0; flips < 8; ++flips)
            bytes[random.bounded(100, static_cast<int>(bytes.size()))] =
                static_cast<char>(random.bounded(256));
        MadeDatabases::write(path, bytes);
        try {
            OMStore store(path);
            ++opened;
            for (const Pet& pet : store.pets()) {
                store.weights(pet.id);
                store.visits(pet.id);
            }
            store.reminders();
            store.digest();
            StoreFile::damage(path);
        } catch (const Failure& failure) {
            EXPECT_FALSE(failure.description().isEmpty());
        }
    }
    EXPECT_GT(opened, 100);
}

} // namespace ormiva::testing
