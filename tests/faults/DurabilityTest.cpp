// A record whose save returned is there afterwards, whatever happens to the process; a save that fails loses
// nothing.

#include "Children.h"
#include "MadeDatabases.h"
#include "OMStore.h"
#include "Printers.h"

#include <QTemporaryDir>

#include <array>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ormiva::testing {

namespace {

Pet savedPet(OMStore& store) {
    Pet pet;
    pet.name = QStringLiteral("Rex");
    pet.speciesID = QStringLiteral("rabbit");
    store.save(pet);
    return pet;
}

} // namespace

TEST(Durability, WhatSaveReturnedForSurvivesKill) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("Pets.sqlite"));
    for (int round = 0; round < 5; ++round) {
        std::array<int, 2> ends{};
        ASSERT_EQ(pipe(ends.data()), 0);
        const int pid = fork();
        ASSERT_GE(pid, 0);
        if (pid == 0) {
            OMStore store(path);
            const Pet pet = store.pets().isEmpty() ? savedPet(store) : store.pets().first();
            for (;;) {
                WeightEntry entry;
                entry.petID = pet.id;
                entry.grams = 1;
                store.save(entry);
                if (write(ends[1], &entry.id, sizeof entry.id) != sizeof entry.id)
                    _exit(1);
            }
        }
        close(ends[1]);
        qint64 acknowledged = 0;
        int count = 0;
        while (count < 20 + round && read(ends[0], &acknowledged, sizeof acknowledged) == sizeof acknowledged)
            ++count;
        kill(pid, SIGKILL);
        waitpid(pid, nullptr, 0);
        while (read(ends[0], &acknowledged, sizeof acknowledged) == sizeof acknowledged)
            ++count;
        close(ends[0]);
        ASSERT_GE(count, 20 + round);

        OMStore store(path);
        const qint64 petID = store.pets().first().id;
        const QList<WeightEntry> weights = store.weights(petID);
        ASSERT_FALSE(weights.isEmpty());
        // Ids are handed out one by one, so the last acknowledged one stands for all before it.
        EXPECT_GE(weights.last().id, acknowledged);
        EXPECT_EQ(weights.size(), weights.last().id);
        EXPECT_EQ(store.db()
                      .query(QStringLiteral("PRAGMA integrity_check"))
                      .first()
                      .str(QStringLiteral("integrity_check")),
                  QStringLiteral("ok"));
    }
}

TEST(Durability, AFullDiskLosesNothingAndSaysSo) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("Pets.sqlite"));
    MadeDatabases::ours(path);
    const QString before = OMStore(path).digest();
    const auto size = static_cast<rlim_t>(MadeDatabases::bytes(path).size());
    const int pid = fork();
    ASSERT_GE(pid, 0);
    if (pid == 0) {
        // No file of this process can grow past the limit, as if the disk were full.
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{size + 4096, size + 4096};
        if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
            _exit(3);
        OMStore store(path);
        Pet pet = store.pets().first();
        pet.photo = QByteArray(1 << 20, 'p');
        try {
            store.save(pet);
            _exit(4); // The failure didn't happen.
        } catch (const OMError& error) {
            _exit(error.kind() == OMError::Case::Database && store.revision() == 0 && store.digest() == before
                      ? 0
                      : 5);
        }
    }
    int status = 0;
    ASSERT_EQ(waitpid(pid, &status, 0), pid);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
    EXPECT_EQ(OMStore(path).digest(), before);
}

} // namespace ormiva::testing
