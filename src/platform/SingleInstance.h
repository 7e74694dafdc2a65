// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLockFile>
#include <QObject>
#include <QString>

class QLocalServer;
class QLocalSocket;

namespace velmora
{

/// One running program per user data folder. The first object to be made holds a lock file and
/// listens on a local socket that only this user can reach; what a killed process left of either
/// is taken over. GUI thread, with an event loop on the receiving side.
class SingleInstance : public QObject
{
    Q_OBJECT
public:
    /// @p folder holds the lock file and names the channel; it is made when missing.
    explicit SingleInstance(const QString &folder, QObject *parent = nullptr);
    ~SingleInstance() override;

    /// Whether another process was first. False too when the lock file cannot be written.
    bool isRunning() const;

    /// Delivers @p text to the first process and waits for its receipt, at most @p timeoutMs.
    /// On false the other is not reachable; if it is gone by then, this object becomes the first.
    bool sendMessage(const QString &text, int timeoutMs);
    /// Gives up being the first process, as the end of this object does.
    void release();

signals:
    /// A text from a second process, once for each delivery.
    void messageReceived(const QString &text);

private:
    void claim();
    void onConnection();
    void onData(QLocalSocket *socket);

    const QString m_serverName;
    QLockFile m_lock;
    QLocalServer *m_server = nullptr;
    bool m_otherRuns = false;
};

} // namespace velmora
