#include "Opener.h"

#include "DesktopStandIn.h"
#include "Printers.h"

#include <QList>

#include <utility>

namespace ormiva {
namespace {

using testing::DesktopStandIn;

class RecordedFailures {
public:
    RecordedFailures()
        : m_before(
              std::exchange(Opener::failed, [this](const QUrl& address) { addresses.append(address); })) {}
    ~RecordedFailures() { Opener::failed = m_before; }
    RecordedFailures(const RecordedFailures&) = delete;
    RecordedFailures& operator=(const RecordedFailures&) = delete;

    QList<QUrl> addresses;

private:
    std::function<void(const QUrl&)> m_before;
};

TEST(Opener, HandsAnAddressToTheDesktop) {
    const DesktopStandIn desktop(QStringLiteral("ormiva-test"));
    const RecordedFailures failures;
    const QUrl address(QStringLiteral("ormiva-test://clinic.example/a%20b?c=d#e"));
    Opener::open(address);
    EXPECT_EQ(desktop.opened, QList<QUrl>({address}));
    EXPECT_EQ(failures.addresses, QList<QUrl>());
}

TEST(Opener, TellsOfAnAddressThatTheDesktopDoesNotOpen) {
    const RecordedFailures failures;
    const QUrl address(QStringLiteral("ormiva-nobody://clinic.example"));
    Opener::open(address);
    EXPECT_EQ(failures.addresses, QList<QUrl>({address}));
}

TEST(Opener, NeedsNobodyToListenToFailures) {
    ASSERT_FALSE(Opener::failed);
    EXPECT_NO_THROW(Opener::open(QUrl(QStringLiteral("ormiva-nobody://clinic.example"))));
}

TEST(Opener, CanBeReplaced) {
    QList<QUrl> recorded;
    const auto before = std::exchange(Opener::open, [&](const QUrl& address) { recorded.append(address); });
    const QUrl address(QStringLiteral("https://clinic.example"));
    Opener::open(address);
    Opener::open = before;
    EXPECT_EQ(recorded, QList<QUrl>({address}));
}

} // namespace
} // namespace ormiva
