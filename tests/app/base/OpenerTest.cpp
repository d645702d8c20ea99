#include "Opener.h"

#include "Printers.h"

#include <QDesktopServices>
#include <QList>
#include <QObject>

#include <utility>

namespace ormiva {
namespace {

/// Stands in for the desktop where an address has its scheme.
class DesktopStandIn final : public QObject {
    Q_OBJECT

public:
    explicit DesktopStandIn(const QString& scheme)
        : m_scheme(scheme) {
        QDesktopServices::setUrlHandler(m_scheme, this, "open");
    }
    ~DesktopStandIn() override { QDesktopServices::unsetUrlHandler(m_scheme); }

    QList<QUrl> opened;

public Q_SLOTS:
    void open(const QUrl& address) { opened.append(address); }

private:
    QString m_scheme;
};

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

#include "OpenerTest.moc"
