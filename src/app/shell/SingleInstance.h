#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>

namespace ormiva {

/// Makes sure that one process of this user runs the window. The first holds a lock file and listens on a
/// socket, both in a folder that only the user can enter; a later one asks it to come forward. A lock left by
/// a process that died is taken over.
class SingleInstance final : public QObject {
    Q_OBJECT

public:
    /// `folder` is the user's runtime folder.
    explicit SingleInstance(const QString& folder, QObject* parent = nullptr);

    /// True when this process is the first. Otherwise the first one has been asked to come forward, or did
    /// not answer within two seconds.
    bool claim();

Q_SIGNALS:
    /// Another launch wants this process in front. `token` is its activation token, or empty.
    void broughtForward(const QByteArray& token);

private:
    bool askToComeForward() const;
    void answer();

    QString m_socketPath;
    QLockFile m_lock;
    QLocalServer m_server;
};

} // namespace ormiva
