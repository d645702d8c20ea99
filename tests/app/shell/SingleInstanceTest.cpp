#include "SingleInstance.h"

#include "Printers.h"
#include "TemporaryFolder.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLockFile>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ormiva::testing {

namespace {

/// What the first instance hears within two seconds.
QList<QByteArray> heard(SingleInstance& first, const std::function<void()>& launch) {
    QList<QByteArray> tokens;
    QObject::connect(&first, &SingleInstance::broughtForward, &first,
                     [&tokens](const QByteArray& token) { tokens.append(token); });
    launch();
    QElapsedTimer timer;
    timer.start();
    while (tokens.isEmpty() && !timer.hasExpired(2000))
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    return tokens;
}

} // namespace

TEST(SingleInstance, ASecondLaunchBringsTheFirstForwardWithItsToken) {
    const TemporaryFolder folder;
    SingleInstance first(folder.path());
    ASSERT_TRUE(first.claim());
    const auto tokens = heard(first, [&] {
        qputenv("XDG_ACTIVATION_TOKEN", "token-7");
        SingleInstance second(folder.path());
        EXPECT_FALSE(second.claim());
        qunsetenv("XDG_ACTIVATION_TOKEN");
    });
    EXPECT_EQ(tokens, QList<QByteArray>{"token-7"});
}

TEST(SingleInstance, OnlyTheUserCanReachIt) {
    const TemporaryFolder folder;
    SingleInstance first(folder.path());
    ASSERT_TRUE(first.claim());
    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    EXPECT_EQ(QFile::permissions(folder.file(QStringLiteral("com.ventrel.ormiva.socket"))) & others,
              QFile::Permissions());
}

TEST(SingleInstance, AfterTheFirstHasEndedAnotherOneIsFirst) {
    const TemporaryFolder folder;
    {
        SingleInstance first(folder.path());
        ASSERT_TRUE(first.claim());
    }
    SingleInstance next(folder.path());
    EXPECT_TRUE(next.claim());
}

TEST(SingleInstance, TheLockOfAProcessThatDiedIsTakenOver) {
    const TemporaryFolder folder;
    const QString lock = folder.file(QStringLiteral("com.ventrel.ormiva.lock"));
    const int pid = fork();
    ASSERT_GE(pid, 0);
    if (pid == 0) {
        QLockFile held(lock);
        _exit(held.tryLock(0) ? 0 : 1); // Ends without unlocking.
    }
    int status = 0;
    ASSERT_EQ(waitpid(pid, &status, 0), pid);
    ASSERT_EQ(WEXITSTATUS(status), 0);
    ASSERT_TRUE(QFileInfo::exists(lock));
    SingleInstance first(folder.path());
    EXPECT_TRUE(first.claim());
}

TEST(SingleInstance, AFolderThatIsMissingIsNoReasonNotToStart) {
    const TemporaryFolder folder;
    SingleInstance only(folder.file(QStringLiteral("missing")));
    EXPECT_TRUE(only.claim());
}

} // namespace ormiva::testing
