// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QHash>
#include <QHostAddress>
#include <QList>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

namespace velmora
{

/// A local HTTP server that keeps the requests' first lines and answers each at once, or when
/// release() is called while it is held.
class HttpServer : public QTcpServer
{
public:
    explicit HttpServer(QObject *parent = nullptr) : QTcpServer(parent)
    {
        connect(this, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket *const socket = nextPendingConnection()) {
                connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
                connect(socket, &QTcpSocket::readyRead, this, [this, socket] { onData(socket); });
            }
        });
        setStatus("200 OK");
        listen(QHostAddress::LocalHost);
    }

    QUrl url() const { return QUrl(QStringLiteral("http://127.0.0.1:%1").arg(serverPort())); }

    void setStatus(const QByteArray &status) { setAnswer(status, QByteArray()); }
    void setAnswer(const QByteArray &status, const QByteArray &body)
    {
        setRawAnswer("HTTP/1.1 " + status + "\r\nContent-Length: " +
                     QByteArray::number(body.size()) + "\r\nConnection: close\r\n\r\n" + body);
    }
    /// Whatever bytes instead of a proper answer.
    void setRawAnswer(const QByteArray &answer) { m_answer = answer; }
    void hold() { m_held = true; }
    void release()
    {
        m_held = false;
        for (const QPointer<QTcpSocket> &socket : qAsConst(m_waiting)) {
            if (socket)
                answer(socket);
        }
        m_waiting.clear();
    }

    /// "GET /path?query HTTP/1.1" of each request so far.
    QList<QByteArray> requests;

private:
    void onData(QTcpSocket *socket)
    {
        QByteArray &data = m_buffers[socket];
        data += socket->readAll();
        if (!data.contains("\r\n\r\n"))
            return;
        requests.append(data.left(data.indexOf("\r\n")));
        m_buffers.remove(socket);
        if (m_held)
            m_waiting.append(socket);
        else
            answer(socket);
    }

    void answer(QTcpSocket *socket)
    {
        socket->write(m_answer);
        socket->disconnectFromHost();
    }

    QByteArray m_answer;
    bool m_held = false;
    QHash<QTcpSocket *, QByteArray> m_buffers;
    QList<QPointer<QTcpSocket>> m_waiting;
};

} // namespace velmora
