#include "OMDelegate.h"

#include "OMPrefs.h"
#include "OMStore.h"
#include "Printers.h"
#include "SingleInstance.h"
#include "TemporaryFolder.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QStringList>
#include <QTimer>

#include <gtest/gtest.h>

namespace ormiva::testing {

namespace {

class OMDelegateTest : public ::testing::Test {
protected:
    void SetUp() override { OMPrefs::useFile(m_folder.file(QStringLiteral("prefs.ini"))); }

    NotificationActions recorder() {
        return {.reschedule = [this] { m_calls.append(QStringLiteral("reschedule")); },
                .requestPermission = [this] { m_calls.append(QStringLiteral("permission")); }};
    }
    void addReminder(bool active) {
        Reminder reminder;
        reminder.active = active;
        m_store.save(reminder);
    }
    /// Lets the event loop run for `duration`, or until something was called.
    void waitForCalls(std::chrono::milliseconds duration) {
        QElapsedTimer timer;
        timer.start();
        while (m_calls.isEmpty() && !timer.hasExpired(duration.count()))
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }

    TemporaryFolder m_folder;
    OMStore m_store{m_folder.file(QStringLiteral("Pets.sqlite"))};
    SingleInstance m_instance{m_folder.path()};
    QStringList m_calls;
};

const QStringList planned = {QStringLiteral("reschedule")};

} // namespace

TEST_F(OMDelegateTest, ALaunchWithoutRemindersPlansAndDoesNotAsk) {
    OMDelegate delegate(&m_store, recorder());
    EXPECT_TRUE(delegate.applicationDidFinishLaunching(m_instance));
    EXPECT_EQ(m_calls, planned);
}

TEST_F(OMDelegateTest, ALaunchWithAnActiveReminderPlansThenAsks) {
    addReminder(false);
    addReminder(true);
    OMDelegate delegate(&m_store, recorder());
    EXPECT_TRUE(delegate.applicationDidFinishLaunching(m_instance));
    EXPECT_EQ(m_calls, (QStringList{QStringLiteral("reschedule"), QStringLiteral("permission")}));
}

TEST_F(OMDelegateTest, PausedRemindersAreNoReasonToAsk) {
    addReminder(false);
    OMDelegate delegate(&m_store, recorder());
    EXPECT_TRUE(delegate.applicationDidFinishLaunching(m_instance));
    EXPECT_EQ(m_calls, planned);
}

TEST_F(OMDelegateTest, WithRemindersOffALaunchPlansAndDoesNotAsk) {
    addReminder(true);
    OMPrefs::setValue(OMPrefs::remindersKey, false);
    OMDelegate delegate(&m_store, recorder());
    EXPECT_TRUE(delegate.applicationDidFinishLaunching(m_instance));
    EXPECT_EQ(m_calls, planned);
}

TEST_F(OMDelegateTest, ABurstOfChangesAsksThenPlansOnceASecondLater) {
    addReminder(true);
    OMDelegate delegate(&m_store, recorder());
    ASSERT_TRUE(delegate.applicationDidFinishLaunching(m_instance));
    m_calls.clear();
    QElapsedTimer sinceLast;
    for (int i = 0; i < 5; ++i) {
        m_store.changed();
        sinceLast.start();
    }
    waitForCalls(std::chrono::seconds(20));
    EXPECT_GE(sinceLast.elapsed(), 990);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_calls, (QStringList{QStringLiteral("permission"), QStringLiteral("reschedule")}));
}

TEST_F(OMDelegateTest, TheRevisionAtLaunchIsNoChange) {
    m_store.changed();
    OMDelegate delegate(&m_store, recorder());
    ASSERT_TRUE(delegate.applicationDidFinishLaunching(m_instance));
    m_calls.clear();
    waitForCalls(std::chrono::milliseconds(1300));
    EXPECT_EQ(m_calls, QStringList());
}

TEST_F(OMDelegateTest, EveryHourCountsAsAChange) {
    EXPECT_EQ(OMDelegate::turn, std::chrono::seconds(3600));
    EXPECT_EQ(OMDelegate::debounce, std::chrono::seconds(1));
    OMDelegate delegate(&m_store, {});
    ASSERT_TRUE(delegate.applicationDidFinishLaunching(m_instance));
    EXPECT_TRUE(delegate.turnTimer().isActive());
    EXPECT_FALSE(delegate.turnTimer().isSingleShot());
    EXPECT_EQ(delegate.turnTimer().intervalAsDuration(), std::chrono::seconds(3600));
    const int before = m_store.revision();
    delegate.turnTimer().setInterval(0);
    QCoreApplication::processEvents();
    EXPECT_GT(m_store.revision(), before);
}

TEST_F(OMDelegateTest, WithoutAStoreNothingIsPlannedOrWatched) {
    OMDelegate delegate(nullptr, recorder());
    EXPECT_TRUE(delegate.applicationDidFinishLaunching(m_instance));
    EXPECT_EQ(m_calls, QStringList());
    EXPECT_FALSE(delegate.turnTimer().isActive());
}

TEST_F(OMDelegateTest, ASecondLaunchStartsNothing) {
    ASSERT_TRUE(m_instance.claim());
    SingleInstance second(m_folder.path());
    addReminder(true);
    OMDelegate delegate(&m_store, recorder());
    EXPECT_FALSE(delegate.applicationDidFinishLaunching(second));
    EXPECT_EQ(m_calls, QStringList());
    EXPECT_FALSE(delegate.turnTimer().isActive());
}

} // namespace ormiva::testing
