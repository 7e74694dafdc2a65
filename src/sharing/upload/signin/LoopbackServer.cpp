// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/signin/LoopbackServer.h"

#include "sharing/SharingLog.h"

#include <QTcpSocket>
#include <QTimer>

namespace velmora
{

namespace
{

constexpr int kLongestHead = 16 * 1024; // bytes
constexpr int kMostConnections = 32;
constexpr int kPatience = 10000; // ms

QByteArray reasonOf(int status)
{
    switch (status) {
    case 200:
        return "OK";
    case 404:
        return "Not Found";
    case 405:
        return "Method Not Allowed";
    default:
        return "Bad Request";
    }
}

} // namespace

LoopbackServer::LoopbackServer(Responder responder, QObject *parent)
    : QObject(parent), m_responder(std::move(responder))
{
    connect(&m_server, &QTcpServer::newConnection, this, &LoopbackServer::takeConnections);
}

LoopbackServer::~LoopbackServer()
{
    // The sockets, children of the server, end with it and would still report that.
    const auto sockets = m_server.findChildren<QTcpSocket *>();
    for (QTcpSocket *socket : sockets)
        socket->disconnect(this);
}

bool LoopbackServer::listen(quint16 port)
{
    if (m_server.listen(QHostAddress::LocalHost, port))
        return true;
    qCWarning(lcSharing).noquote()
        << QStringLiteral("Cannot listen on port %1:").arg(port) << m_server.errorString();
    return false;
}

void LoopbackServer::takeConnections()
{
    while (QTcpSocket *socket = m_server.nextPendingConnection()) {
        connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
            m_heads.remove(socket);
            socket->deleteLater();
        });
        if (m_heads.size() >= kMostConnections) {
            socket->abort();
            continue;
        }
        m_heads.insert(socket, {});
        socket->setReadBufferSize(kLongestHead);
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { onReadyRead(socket); });
        QTimer::singleShot(kPatience, socket, [socket] { socket->abort(); });
        onReadyRead(socket);
    }
}

void LoopbackServer::onReadyRead(QTcpSocket *socket)
{
    const auto head = m_heads.find(socket);
    if (head == m_heads.end()) {
        socket->readAll(); // It was answered; closing with unread bytes would cut the answer off.
        return;
    }
    head->append(socket->readAll());
    const bool complete = head->contains("\r\n\r\n") || head->contains("\n\n");
    if (!complete && head->size() < kLongestHead)
        return;
    const QByteArray text = *head;
    m_heads.erase(head);
    answer(socket, complete ? replyTo(text) : Reply{400, QString()});
}

LoopbackServer::Reply LoopbackServer::replyTo(const QByteArray &head) const
{
    QByteArray line = head.left(head.indexOf('\n'));
    if (line.endsWith('\r'))
        line.chop(1);
    const auto request = CallbackRequest::parse(line);
    if (!request)
        return {400, QString()};
    if (request->method != "GET")
        return {405, QString()};
    return m_responder(*request);
}

void LoopbackServer::answer(QTcpSocket *socket, const Reply &reply)
{
    const QByteArray body = reply.html.toUtf8();
    socket->write("HTTP/1.1 " + QByteArray::number(reply.status) + ' ' + reasonOf(reply.status) +
                  "\r\nContent-Type: text/html; charset=utf-8\r\nContent-Length: " +
                  QByteArray::number(body.size()) +
                  "\r\nConnection: close\r\nCache-Control: no-store\r\nReferrer-Policy: no-referrer"
                  "\r\nX-Content-Type-Options: nosniff\r\nContent-Security-Policy: default-src "
                  "'none'; img-src data:; style-src 'unsafe-inline'\r\n\r\n" +
                  body);
    socket->flush(); // The sign-in, and this server, may end right now.
    socket->disconnectFromHost();
}

} // namespace velmora
