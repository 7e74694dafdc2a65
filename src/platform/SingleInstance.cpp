// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SingleInstance.h"

#include "platform/ForegroundWindow.h"
#include "platform/LocalServerName.h"
#include "platform/PlatformLog.h"

#include <QDataStream>
#include <QDir>
#include <QElapsedTimer>
#include <QLocalServer>
#include <QLocalSocket>
#include <QThread>
#include <QTimer>

namespace velmora
{

namespace
{

constexpr qint64 kMaximumMessage = 4LL * 1024 * 1024; // bytes; the paths of many thousand photos
constexpr int kSilentConnection = 5000;               // ms
constexpr int kRetryPause = 50;                       // ms
constexpr char kReceipt = '+';

int remaining(const QElapsedTimer &timer, int timeoutMs)
{
    return qMax(0, timeoutMs - static_cast<int>(timer.elapsed()));
}

bool deliver(QLocalSocket &socket, const QByteArray &message, const QElapsedTimer &timer,
             int timeoutMs)
{
    socket.write(message);
    while (socket.bytesToWrite() > 0) {
        if (!socket.waitForBytesWritten(remaining(timer, timeoutMs)))
            return false;
    }
    while (socket.bytesAvailable() == 0) {
        if (!socket.waitForReadyRead(remaining(timer, timeoutMs)))
            return false;
    }
    char receipt = 0;
    return socket.getChar(&receipt) && receipt == kReceipt;
}

} // namespace

SingleInstance::SingleInstance(const QString &folder, QObject *parent)
    : QObject(parent), m_serverName(localServerName(folder)),
      m_lock(folder + QStringLiteral("/velmora.lock"))
{
    QDir().mkpath(folder);
    // Age alone never makes the lock stale; a dead owner does.
    m_lock.setStaleLockTime(0);
    claim();
}

SingleInstance::~SingleInstance() = default;

bool SingleInstance::isRunning() const
{
    return m_otherRuns;
}

void SingleInstance::claim()
{
    const bool locked = m_lock.tryLock();
    m_otherRuns = !locked && m_lock.error() == QLockFile::LockFailedError;
    if (m_otherRuns)
        return;
    if (!locked)
        qCWarning(lcPlatform) << "Cannot lock the single instance file, error:" << m_lock.error();
    m_server = new QLocalServer(this);
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server, &QLocalServer::newConnection, this, &SingleInstance::onConnection);
    // Only the lock's owner comes here, so a socket of that name is a dead process's.
    if (locked)
        QLocalServer::removeServer(m_serverName);
    if (!m_server->listen(m_serverName))
        qCWarning(lcPlatform).noquote()
            << "Cannot listen for second starts:" << m_server->errorString();
}

bool SingleInstance::sendMessage(const QString &text, int timeoutMs)
{
    QByteArray message;
    QDataStream stream(&message, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_5_15);
    stream << text.toUtf8();
    // The text may have the other one show its window, which this one alone can permit.
    allowForegroundWindow();

    QElapsedTimer timer;
    timer.start();
    // The first process may still be on its way from the lock to the socket.
    while (timer.elapsed() < timeoutMs) {
        QLocalSocket socket;
        socket.connectToServer(m_serverName);
        if (socket.waitForConnected(remaining(timer, timeoutMs)) &&
            deliver(socket, message, timer, timeoutMs))
            return true;
        QThread::msleep(kRetryPause);
    }
    if (!m_server)
        claim();
    return false;
}

void SingleInstance::release()
{
    delete m_server;
    m_server = nullptr;
    m_lock.unlock();
}

void SingleInstance::onConnection()
{
    while (QLocalSocket *const socket = m_server->nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { onData(socket); });
        QTimer::singleShot(kSilentConnection, socket, [socket] { socket->abort(); });
        onData(socket);
    }
}

void SingleInstance::onData(QLocalSocket *socket)
{
    if (socket->bytesAvailable() > kMaximumMessage) {
        socket->abort();
        return;
    }
    QDataStream stream(socket);
    stream.setVersion(QDataStream::Qt_5_15);
    stream.startTransaction();
    QByteArray text;
    stream >> text;
    if (!stream.commitTransaction())
        return;
    socket->putChar(kReceipt);
    socket->flush();
    socket->disconnectFromServer();
    emit messageReceived(QString::fromUtf8(text));
}

} // namespace velmora
