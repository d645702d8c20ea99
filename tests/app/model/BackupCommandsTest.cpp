#include "BackupCommands.h"

#include "AppModel.h"
#include "FixedCalendar.h"
#include "MadeStore.h"
#include "ScopedVariable.h"
#include "ScriptedPanels.h"

#include <QDir>
#include <QFile>

namespace ormiva {
namespace {

using namespace ormiva::testing;

class BackupCommand : public ::testing::Test {
protected:
    void addWeights(int count) {
        const Pet pet = made.addPet(u"Rex"_qs);
        for (int i = 0; i < count; ++i) {
            WeightEntry entry;
            entry.petID = pet.id;
            entry.grams = 10;
            made.store.save(entry);
        }
    }

    TemporaryFolder home;
    ScopedVariable dataHome{"XDG_DATA_HOME", home.path().toUtf8()};
    FixedCalendar calendar{utc(2026, 11, 21, 23, 30), u"Europe/Berlin"_qs};
    MadeStore made;
    TemporaryFolder elsewhere;
    AppModel model;
    ScriptedPanels panels;
};

TEST_F(BackupCommand, BackUpNowWritesAndShowsTheFile) {
    addWeights(2);
    panels.answer = elsewhere.file(u"mine.ombackup"_qs);
    BackupCommands::backUpNow(model, made.store, panels);
    EXPECT_EQ(panels.asked, QStringList({u"save Ormiva backup 2026-11-22.ombackup .ombackup"_qs}));
    EXPECT_EQ(panels.revealed, QStringList({*panels.answer}));
    EXPECT_EQ(OMStore(*panels.answer).digest(), made.store.digest());
    EXPECT_EQ(model.message(), std::nullopt);
}

TEST_F(BackupCommand, BackUpNowDoesNothingWhenCancelled) {
    BackupCommands::backUpNow(model, made.store, panels);
    EXPECT_EQ(panels.revealed, QStringList());
    EXPECT_EQ(model.message(), std::nullopt);
}

TEST_F(BackupCommand, BackUpNowTellsAFailure) {
    panels.answer = made.path();
    BackupCommands::backUpNow(model, made.store, panels);
    EXPECT_EQ(model.message(), u"Please choose another place: this file holds your records."_qs);
    EXPECT_EQ(panels.revealed, QStringList());
}

TEST_F(BackupCommand, RestoreAsksAndThenReplacesTheRecords) {
    addWeights(3);
    const QString backup = elsewhere.file(u"b.ombackup"_qs);
    made.store.backup(backup);
    const QString digest = made.store.digest();
    made.addPet(u"Newer"_qs);
    model.setPetID(1);
    panels.answer = backup;

    BackupCommands::restore(model, made.store, panels);
    EXPECT_EQ(panels.asked, QStringList({u"open .ombackup Choose a VLK Ormiva backup"_qs}));
    ASSERT_TRUE(model.confirm());
    EXPECT_EQ(model.confirm()->title, u"Restore this backup?"_qs);
    EXPECT_EQ(model.confirm()->message,
              u"It holds 1 pets and 3 weights. Your current records will be replaced, after being "
              u"saved as a “Before restore” copy in the data folder."_qs);
    EXPECT_EQ(model.confirm()->button, u"Restore"_qs);
    EXPECT_NE(made.store.digest(), digest);

    model.answerConfirm(true);
    EXPECT_EQ(made.store.digest(), digest);
    EXPECT_EQ(model.petID(), std::nullopt);
    EXPECT_EQ(model.message(),
              u"Restored. Your previous records were kept as “Before restore 2026-11-22 003000.sqlite”."_qs);
    EXPECT_TRUE(QFile::exists(made.folder.file(u"Before restore 2026-11-22 003000.sqlite"_qs)));
}

TEST_F(BackupCommand, RestoreLeavesTheRecordsWhenItIsNotConfirmed) {
    const QString backup = elsewhere.file(u"b.ombackup"_qs);
    made.store.backup(backup);
    made.addPet(u"Newer"_qs);
    const QString digest = made.store.digest();
    model.setPetID(1);
    panels.answer = backup;
    BackupCommands::restore(model, made.store, panels);
    model.answerConfirm(false);
    EXPECT_EQ(made.store.digest(), digest);
    EXPECT_EQ(model.petID(), 1);
    EXPECT_EQ(model.message(), std::nullopt);
    EXPECT_EQ(QDir(made.folder.path()).entryList(QDir::Files), QStringList({u"Pets.sqlite"_qs}));
}

TEST_F(BackupCommand, RestoreDoesNothingWhenCancelled) {
    BackupCommands::restore(model, made.store, panels);
    EXPECT_FALSE(model.confirm());
    EXPECT_EQ(model.message(), std::nullopt);
}

TEST_F(BackupCommand, RestoreTellsWhyAFileIsNoBackup) {
    panels.answer = elsewhere.write(u"text"_qs, "not a database, not a database");
    BackupCommands::restore(model, made.store, panels);
    EXPECT_FALSE(model.confirm());
    EXPECT_EQ(model.message(), u"This file can't be restored: it is not a database file."_qs);
}

TEST_F(BackupCommand, RestoreTellsAFailureAfterTheQuestion) {
    const QString backup = elsewhere.file(u"b.ombackup"_qs);
    made.store.backup(backup);
    panels.answer = backup;
    model.setPetID(1);
    BackupCommands::restore(model, made.store, panels);
    ASSERT_TRUE(QFile::remove(backup));
    model.answerConfirm(true);
    EXPECT_EQ(model.message(), u"This file can't be restored: the file was not found."_qs);
    EXPECT_EQ(model.petID(), 1);
}

} // namespace
} // namespace ormiva
