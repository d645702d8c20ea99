#include "BackupFile.h"
#include "Children.h"
#include "FailingSystem.h"
#include "FaultyVfs.h"
#include "FixedCalendar.h"
#include "OMStore.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <sys/wait.h>
#include <unistd.h>

// A restore in which each call to the system and to the disk goes wrong in turn. Whatever happens, the
// records are those from before or those of the backup, and a safety copy that was made is whole.

namespace ormiva {
namespace {

using namespace ormiva::testing;

/// Records, and a backup of other ones, to be copied for each attempt.
class RestoreFaults : public ::testing::Test {
protected:
    RestoreFaults() {
        {
            OMStore store(m_made.file(u"Pets.sqlite"_qs));
            addPet(store, u"Before"_qs, 3);
            m_before = store.digest();
        }
        {
            OMStore store(m_made.file(u"other.sqlite"_qs));
            addPet(store, u"Of the backup"_qs, 5);
            store.backup(m_made.file(u"b.ombackup"_qs));
            m_ofBackup = store.digest();
        }
    }

    static void addPet(OMStore& store, const QString& name, int weights) {
        Pet pet;
        pet.name = name;
        pet.speciesID = u"rabbit"_qs;
        pet.photo = QByteArray(20'000, 'p');
        store.save(pet);
        for (int i = 1; i <= weights; ++i) {
            WeightEntry entry;
            entry.petID = pet.id;
            entry.grams = i;
            store.save(entry);
        }
    }

    /// A fresh folder with the records and the backup.
    struct Attempt {
        explicit Attempt(const RestoreFaults& test) {
            for (const QString& name : {u"Pets.sqlite"_qs, u"b.ombackup"_qs})
                if (!QFile::copy(test.m_made.file(name), folder.file(name)))
                    std::abort();
        }
        TemporaryFolder folder;
        QString live = folder.file(u"Pets.sqlite"_qs);
        QString backup = folder.file(u"b.ombackup"_qs);
        QString safety = folder.file(u"Before restore 2026-11-21 120000.sqlite"_qs);
    };

    /// What the file at `path` holds, once it was found sound.
    static QString soundDigest(const QString& path) {
        try {
            OMStore store(path);
            const QList<SQLRow> check = store.db().query(u"PRAGMA integrity_check"_qs);
            if (check.size() != 1 || check.first().str(u"integrity_check"_qs) != u"ok")
                return u"damaged"_qs;
            return store.digest();
        } catch (const Failure& failure) {
            return failure.description();
        }
    }

    /// Nothing is lost on the disk: the file has the records from before or those of the backup.
    void expectNothingLost(const Attempt& attempt, const std::string& place) {
        const QString digest = soundDigest(attempt.live);
        EXPECT_TRUE(digest == m_before || digest == m_ofBackup) << place << ": " << digest.toStdString();
        if (QFile::exists(attempt.safety)) {
            EXPECT_EQ(soundDigest(attempt.safety).toStdString(), m_before.toStdString()) << place;
        }
        EXPECT_EQ(soundDigest(attempt.backup).toStdString(), m_ofBackup.toStdString()) << place;
        if (digest == m_ofBackup) {
            EXPECT_TRUE(QFile::exists(attempt.safety)) << place;
        }
    }

    TemporaryFolder m_home;
    TemporaryFolder m_made;
    FixedCalendar m_calendar{utc(2026, 11, 21)};
    QString m_before;
    QString m_ofBackup;
};

/// Runs a restore in which something fails; true when it came to its end.
bool restores(OMStore& store, const QString& backup, const Files& files) {
    try {
        store.restore(backup, files);
        return true;
    } catch (const Failure&) {
        return false;
    }
}

TEST_F(RestoreFaults, OfTheSystemLoseNothing) {
    FailingSystem counted;
    {
        const Attempt attempt(*this);
        OMStore store(attempt.live);
        ASSERT_TRUE(restores(store, attempt.backup, Files(counted)));
    }
    const int calls = static_cast<int>(counted.calls().size());
    ASSERT_GE(calls, 25);

    int refused = 0;
    for (const Trouble trouble :
         {Trouble::Refused, Trouble::NoSpace, Trouble::Broken, Trouble::Busy, Trouble::ShortWrite})
        for (const bool lasting : {false, true})
            for (int call = 1; call <= calls; ++call) {
                const std::string place = counted.calls()[static_cast<std::size_t>(call) - 1] + ", call " +
                                          std::to_string(call) + (lasting ? " and all after it" : "") +
                                          ", trouble " + std::to_string(static_cast<int>(trouble));
                const Attempt attempt(*this);
                OMStore store(attempt.live);
                FailingSystem system(call, trouble, lasting);
                const bool restored = restores(store, attempt.backup, Files(system));
                EXPECT_TRUE(system.hasFailed()) << place;
                if (restored) {
                    EXPECT_EQ(store.digest().toStdString(), m_ofBackup.toStdString()) << place;
                } else if (!lasting) { // The way back works, and so does the store.
                    ++refused;
                    EXPECT_EQ(store.digest().toStdString(), m_before.toStdString()) << place;
                    EXPECT_EQ(soundDigest(attempt.live).toStdString(), m_before.toStdString()) << place;
                }
                system.recover();
                expectNothingLost(attempt, place);
            }
    EXPECT_GE(refused, 50);
}

TEST_F(RestoreFaults, OfTheDiskUnderSqliteLoseNothing) {
    int calls = 0;
    std::vector<std::string> names;
    {
        const Attempt attempt(*this);
        const FaultyVfs disk;
        OMStore store(attempt.live);
        const int before = static_cast<int>(disk.calls().size());
        ASSERT_TRUE(restores(store, attempt.backup, Files()));
        names = disk.calls();
        names.erase(names.begin(), names.begin() + before);
        calls = static_cast<int>(names.size());
    }
    ASSERT_GE(calls, 60);

    int refused = 0;
    for (const DiskTrouble trouble : {DiskTrouble::Broken, DiskTrouble::Full, DiskTrouble::ShortWrite,
                                      DiskTrouble::CannotOpen, DiskTrouble::Locked})
        for (const bool lasting : {false, true}) {
            if (lasting && trouble == DiskTrouble::Locked)
                continue; // Each refused lock is waited for three seconds.
            for (int call = 1; call <= calls; ++call) {
                const std::string place = names[static_cast<std::size_t>(call) - 1] + ", call " +
                                          std::to_string(call) + (lasting ? " and all after it" : "") +
                                          ", trouble " + std::to_string(static_cast<int>(trouble));
                const Attempt attempt(*this);
                bool restored = false;
                {
                    int opening = 0;
                    {
                        const FaultyVfs disk;
                        const OMStore store(attempt.live);
                        opening = static_cast<int>(disk.calls().size());
                    }
                    FaultyVfs disk(opening + call, trouble, lasting);
                    OMStore store(attempt.live);
                    restored = restores(store, attempt.backup, Files());
                    EXPECT_TRUE(disk.hasFailed()) << place;
                    disk.recover();
                    if (restored) {
                        EXPECT_EQ(store.digest().toStdString(), m_ofBackup.toStdString()) << place;
                    } else if (!lasting) {
                        ++refused;
                        EXPECT_EQ(store.digest().toStdString(), m_before.toStdString()) << place;
                    }
                }
                expectNothingLost(attempt, place);
            }
        }
    EXPECT_GE(refused, 100);
}

/// Runs `body` in a child and gives the signal that ended it, 0 when it came to its end.
int signalThatEnded(const std::function<void()>& body) {
    const int pid = fork();
    if (pid == 0) {
        body();
        _exit(0);
    }
    int status = 0;
    if (pid < 0 || waitpid(pid, &status, 0) != pid)
        std::abort();
    return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
}

TEST_F(RestoreFaults, KilledAtAnyCallOfTheSystemLeaveRecords) {
    int killed = 0;
    for (int call = 1; killed == call - 1; ++call) {
        const Attempt attempt(*this);
        killed += signalThatEnded([&] {
                      OMStore store(attempt.live);
                      FailingSystem system(call, Trouble::Killed);
                      restores(store, attempt.backup, Files(system));
                  }) == SIGKILL;
        expectNothingLost(attempt, "killed at call " + std::to_string(call));
    }
    EXPECT_GE(killed, 25);
}

TEST_F(RestoreFaults, KilledAtAnyCallOfSqliteLeaveRecords) {
    int killed = 0;
    for (int call = 1; killed == call - 1; ++call) {
        const Attempt attempt(*this);
        killed += signalThatEnded([&] {
                      const FaultyVfs disk(call, DiskTrouble::Killed);
                      OMStore store(attempt.live);
                      restores(store, attempt.backup, Files());
                  }) == SIGKILL;
        expectNothingLost(attempt, "killed at call " + std::to_string(call));
    }
    EXPECT_GE(killed, 60);
}

TEST_F(RestoreFaults, AreToldInASentence) {
    const Attempt attempt(*this);
    OMStore store(attempt.live);
    /// A system in which nothing can take the place of the records.
    class : public SystemCalls {
        int rename(const char* from, const char* to) override {
            if (!std::string(to).ends_with("/Pets.sqlite"))
                return SystemCalls::rename(from, to);
            errno = EACCES;
            return -1;
        }
    } system;
    const int revision = store.revision();
    try {
        store.restore(attempt.backup, Files(system));
        FAIL();
    } catch (const OMError& error) {
        EXPECT_EQ(error.description().toStdString(),
                  u"This file can't be restored: the copy could not be put in place (Could not replace “%1”: "
                  u"%2.). Your data was left as it was."_qs.arg(attempt.live, systemWords(EACCES))
                      .toStdString());
    }
    EXPECT_EQ(store.digest(), m_before);
    EXPECT_EQ(store.revision(), revision + 1);
    EXPECT_TRUE(QFile::exists(attempt.safety));
    EXPECT_FALSE(QDir(attempt.folder.path()).entryList({u"replaced-*"_qs}).size());
}

TEST_F(RestoreFaults, OfTheSafetyCopyStopTheRestore) {
    const Attempt attempt(*this);
    ASSERT_TRUE(QDir().mkdir(attempt.safety)); // A folder can't be replaced.
    OMStore store(attempt.live);
    EXPECT_FALSE(restores(store, attempt.backup, Files()));
    EXPECT_EQ(store.digest(), m_before);
    EXPECT_EQ(QDir(attempt.folder.path())
                  .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name),
              QStringList({QFileInfo(attempt.safety).fileName(), u"Pets.sqlite"_qs, u"b.ombackup"_qs}));
}

TEST_F(RestoreFaults, OfABackupThatAnotherProcessIsWritingLeaveTheRecords) {
    const Attempt attempt(*this);
    const HeldChild writer([&](const std::function<void()>& ready) {
        SQLiteDB other(attempt.backup);
        other.exec(u"BEGIN EXCLUSIVE; DELETE FROM weight"_qs);
        ready();
        pause();
    });
    OMStore store(attempt.live);
    const auto before = QDir(attempt.folder.path()).entryList(QDir::Files);
    EXPECT_FALSE(restores(store, attempt.backup, Files()));
    EXPECT_EQ(store.digest(), m_before);
    EXPECT_FALSE(QFile::exists(attempt.safety));
}

TEST_F(RestoreFaults, OfAMissingLiveFileNeverMakeAnEmptyOne) {
    const Attempt attempt(*this);
    OMStore store(attempt.live);
    ASSERT_TRUE(QFile::remove(attempt.live));
    /// A system in which the incoming copy can't be put in place, and no copy brings the records back.
    class : public SystemCalls {
        int rename(const char* from, const char* to) override {
            if (!std::string(to).ends_with("/Pets.sqlite"))
                return SystemCalls::rename(from, to);
            errno = EIO;
            return -1;
        }
    } system;
    EXPECT_FALSE(restores(store, attempt.backup, Files(system)));
    EXPECT_FALSE(QFile::exists(attempt.live));
    EXPECT_EQ(soundDigest(attempt.safety), m_before);
    // The store says so until it is opened again.
    Pet pet;
    pet.name = u"Late"_qs;
    pet.speciesID = u"rabbit"_qs;
    EXPECT_THROW(store.save(pet), OMError);
    EXPECT_FALSE(QFile::exists(attempt.live));
}

} // namespace
} // namespace ormiva
