#pragma once

#include <QDesktopServices>
#include <QList>
#include <QObject>
#include <QUrl>

#include <utility>

namespace ormiva::testing {

/// Stands in for the desktop where an address has its scheme.
class DesktopStandIn final : public QObject {
    Q_OBJECT

public:
    explicit DesktopStandIn(QString scheme)
        : m_scheme(std::move(scheme)) {
        QDesktopServices::setUrlHandler(m_scheme, this, "open");
    }
    ~DesktopStandIn() override { QDesktopServices::unsetUrlHandler(m_scheme); }

    QList<QUrl> opened;

public Q_SLOTS:
    void open(const QUrl& address) { opened.append(address); }

private:
    QString m_scheme;
};

} // namespace ormiva::testing
