// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sharing/upload/wire/CallbackRequest.h"

#include <QHash>
#include <QObject>
#include <QTcpServer>

#include <functional>

class QTcpSocket;

namespace velmora
{

/// A small HTTP server on 127.0.0.1 that takes one GET request per connection. It bears whatever
/// connects: long, slow, broken and empty requests, and many of them. GUI thread.
class LoopbackServer : public QObject
{
    Q_OBJECT
public:
    struct Reply {
        int status = 200;
        QString html;
    };
    using Responder = std::function<Reply(const CallbackRequest &)>;

    explicit LoopbackServer(Responder responder, QObject *parent = nullptr);
    ~LoopbackServer() override;

    /// False when the port is taken.
    bool listen(quint16 port);
    /// Takes no further connections; those that are there get their answers.
    void close() { m_server.close(); }

private:
    void takeConnections();
    void onReadyRead(QTcpSocket *socket);
    void answer(QTcpSocket *socket, const Reply &reply);
    Reply replyTo(const QByteArray &head) const;

    Responder m_responder;
    QTcpServer m_server;
    QHash<QTcpSocket *, QByteArray> m_heads; ///< Of connections that were not answered yet.
};

} // namespace velmora
