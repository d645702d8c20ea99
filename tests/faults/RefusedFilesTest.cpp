// Every file that isn't ours, or can't be read, is refused with a sentence and left as it was, siblings
// included.

#include "Children.h"
#include "FolderState.h"
#include "MadeDatabases.h"
#include "OMStore.h"
#include "Printers.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <system_error>

namespace ormiva::testing {

namespace {

const QString notOurs =
    QStringLiteral("The database reported a problem: This file is not a VLK Ormiva database.");
const QString newer = QStringLiteral("The database reported a problem: This database was made by a newer "
                                     "version of VLK Ormiva. Please update the app.");
const QString noDatabase = QStringLiteral("The database reported a problem: file is not a database");
const QString malformed = QStringLiteral("The database reported a problem: database disk image is malformed");

class RefusedFiles : public ::testing::Test {
protected:
    /// The sentence with which opening fails; empty when it doesn't.
    static QString refusal(const QString& file) {
        try {
            const OMStore store(file);
            return {};
        } catch (const Failure& failure) {
            return failure.description();
        }
    }

    void expectRefusedUntouched(const QString& sentence) const {
        const FolderState before = FolderState::of(m_folder.path());
        EXPECT_EQ(refusal(path), sentence);
        EXPECT_EQ(FolderState::of(m_folder.path()), before);
    }

    /// Makes the folder read-only. The way to it has to be open for a child without privileges.
    void lockFolder() const {
        ASSERT_EQ(::chmod(QDir::tempPath().toUtf8().constData(), 0711), 0);
        ASSERT_EQ(::chmod(m_folder.path().toUtf8().constData(), 0555), 0);
    }
    static QString systemSentence(int code) {
        return QString::fromLocal8Bit(std::generic_category().message(code).c_str());
    }

    QTemporaryDir m_folder;
    const QString path = m_folder.filePath(QStringLiteral("Pets.sqlite"));
};

} // namespace

TEST_F(RefusedFiles, TextFile) {
    MadeDatabases::write(path, QByteArray("My pets: Rex and Luna.\n").repeated(400));
    expectRefusedUntouched(noDatabase);
}

TEST_F(RefusedFiles, ShortTextFile) {
    MadeDatabases::write(path, "x");
    expectRefusedUntouched(noDatabase);
}

TEST_F(RefusedFiles, SomebodyElsesDatabase) {
    MadeDatabases::foreign(path);
    expectRefusedUntouched(notOurs);
}

TEST_F(RefusedFiles, NewerVersion) {
    MadeDatabases::ours(path);
    MadeDatabases::exec(path, "PRAGMA user_version = 2");
    expectRefusedUntouched(newer);
}

TEST_F(RefusedFiles, TruncatedDatabase) {
    MadeDatabases::ours(path);
    const QByteArray whole = MadeDatabases::bytes(path);
    for (const qsizetype size :
         {qsizetype(50), qsizetype(100), qsizetype(600), qsizetype(4096), whole.size() / 2}) {
        SCOPED_TRACE(size);
        MadeDatabases::write(path, whole.first(size));
        expectRefusedUntouched(malformed);
    }
}

TEST_F(RefusedFiles, FlippedMagic) {
    MadeDatabases::ours(path);
    MadeDatabases::flipByte(path, 3);
    expectRefusedUntouched(noDatabase);
}

TEST_F(RefusedFiles, FolderInPlaceOfTheFile) {
    ASSERT_TRUE(QDir().mkpath(path));
    expectRefusedUntouched(QStringLiteral("The database reported a problem: unable to open database file"));
}

TEST_F(RefusedFiles, FileInPlaceOfTheFolder) {
    MadeDatabases::write(path, "x");
    const FolderState before = FolderState::of(m_folder.path());
    EXPECT_EQ(refusal(path + QStringLiteral("/Pets.sqlite")),
              QStringLiteral("Could not create the folder “%1”: %2.").arg(path, systemSentence(ENOTDIR)));
    EXPECT_EQ(FolderState::of(m_folder.path()), before);
}

TEST_F(RefusedFiles, LockedByAnotherProcess) {
    MadeDatabases::ours(path);
    const HeldChild holder([this](const auto& ready) {
        sqlite3* handle = nullptr;
        sqlite3_open(path.toUtf8().constData(), &handle);
        if (sqlite3_exec(handle, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr) == SQLITE_OK)
            ready();
        pause();
    });
    expectRefusedUntouched(QStringLiteral("The database reported a problem: database is locked"));
}

TEST_F(RefusedFiles, FolderThatCannotBeWritten) {
    lockFolder();
    const int status = runUnprivileged([this] {
        // The folder must be there and refuse, or the test would prove nothing.
        if (!QFileInfo(m_folder.path()).isDir() ||
            QFile(m_folder.filePath(QStringLiteral("probe"))).open(QIODevice::WriteOnly))
            return 1;
        return refusal(path) ==
                       QStringLiteral("The database reported a problem: unable to open database file")
                   ? 0
                   : 2;
    });
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(FolderState::of(m_folder.path()).entries.isEmpty());
}

TEST_F(RefusedFiles, FolderThatCannotBeMade) {
    lockFolder();
    const QString folder = m_folder.filePath(QStringLiteral("made"));
    const int status = runUnprivileged([&] {
        if (!QFileInfo(m_folder.path()).isDir() || QDir().mkpath(m_folder.filePath(QStringLiteral("probe"))))
            return 1;
        return refusal(folder + QStringLiteral("/Pets.sqlite")) ==
                       QStringLiteral("Could not create the folder “%1”: %2.")
                           .arg(folder, systemSentence(EACCES))
                   ? 0
                   : 2;
    });
    EXPECT_EQ(status, 0);
}

TEST_F(RefusedFiles, SomebodyElsesWithAPendingWal) {
    MadeDatabases::foreign(path);
    MadeDatabases::leavePendingWal(path);
    expectRefusedUntouched(notOurs);
}

TEST_F(RefusedFiles, SomebodyElsesInWalModeWithoutSiblings) {
    MadeDatabases::foreign(path);
    MadeDatabases::exec(path, "PRAGMA journal_mode = WAL");
    ASSERT_EQ(FolderState::of(m_folder.path()).entries.keys(), QStringList(QStringLiteral("Pets.sqlite")));
    expectRefusedUntouched(notOurs);
}

TEST_F(RefusedFiles, NewerVersionThatStandsInTheWalOnly) {
    MadeDatabases::ours(path);
    MadeDatabases::exec(path, "PRAGMA user_version = 2");
    MadeDatabases::leavePendingWal(path);
    expectRefusedUntouched(newer);
}

TEST_F(RefusedFiles, SomebodyElsesWithAHotJournal) {
    MadeDatabases::foreign(path);
    MadeDatabases::leaveHotJournal(path, "UPDATE t SET x = 'changed' || x");
    expectRefusedUntouched(notOurs);
}

TEST_F(RefusedFiles, NewerVersionThatOnlyTheHotJournalBringsBack) {
    MadeDatabases::ours(path);
    MadeDatabases::exec(path, "PRAGMA user_version = 2");
    MadeDatabases::leaveHotJournal(path, "PRAGMA user_version = 1; UPDATE weight SET note = note || note");
    expectRefusedUntouched(newer);
}

TEST_F(RefusedFiles, BehindALink) {
    const QTemporaryDir elsewhere;
    const QString real = elsewhere.filePath(QStringLiteral("real.sqlite"));
    MadeDatabases::foreign(real);
    MadeDatabases::leavePendingWal(real);
    ASSERT_TRUE(QFile::link(real, path));
    const FolderState before = FolderState::of(elsewhere.path());
    expectRefusedUntouched(notOurs);
    EXPECT_EQ(FolderState::of(elsewhere.path()), before);
}

} // namespace ormiva::testing
