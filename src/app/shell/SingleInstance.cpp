#include "SingleInstance.h"

#include "OMInfo.h"

#include <QDeadlineTimer>
#include <QLocalSocket>
#include <QThread>

namespace ormiva {

namespace {
constexpr int answerMilliseconds = 2000;
}

SingleInstance::SingleInstance(const QString& folder, QObject* parent)
    : QObject(parent)
    , m_socketPath(folder + u'/' + OMInfo::identity + QStringLiteral(".socket"))
    , m_lock(folder + u'/' + OMInfo::identity + QStringLiteral(".lock")) {
    // A lock is stale when its process is gone, never because it is old.
    m_lock.setStaleLockTime(0);
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::answer);
}

bool SingleInstance::claim() {
    if (!m_lock.tryLock(0) && m_lock.error() == QLockFile::LockFailedError) {
        const QDeadlineTimer deadline(answerMilliseconds);
        while (!askToComeForward() && !deadline.hasExpired()) // The first one may be starting.
            QThread::msleep(50);
        return false;
    }
    // A folder in which no lock can be made is no reason not to start, nor is a socket that can't be made: a
    // second launch then ends without bringing this one forward.
    QLocalServer::removeServer(m_socketPath);
    m_server.listen(m_socketPath);
    return true;
}

bool SingleInstance::askToComeForward() const {
    QLocalSocket socket;
    socket.connectToServer(m_socketPath);
    if (!socket.waitForConnected(answerMilliseconds))
        return false;
    socket.write(qgetenv("XDG_ACTIVATION_TOKEN") + '\n');
    return socket.waitForBytesWritten(answerMilliseconds);
}

void SingleInstance::answer() {
    QLocalSocket* socket = m_server.nextPendingConnection();
    connect(socket, &QLocalSocket::disconnected, socket, [this, socket] {
        Q_EMIT broughtForward(socket->readLine(256).trimmed());
        socket->deleteLater();
    });
}

} // namespace ormiva
