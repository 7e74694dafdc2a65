// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/dropbox/client/ApiRequest.h"

#include "sharing/SharingLog.h"
#include "sharing/upload/net/ServiceNetwork.h"
#include "sharing/upload/wire/DropboxMessages.h"

#include <QCoreApplication>
#include <QNetworkReply>
#include <QNetworkRequest>

namespace velmora
{

namespace DropboxClient
{

ApiRequest::ApiRequest(ServiceNetwork &network, QObject *parent)
    : QObject(parent), m_network(network)
{
}

ApiRequest::~ApiRequest()
{
    abort();
}

void ApiRequest::post(const QUrl &address, const QByteArray &argument, const QByteArray &data)
{
    abort();
    QNetworkRequest request(address);
    request.setRawHeader("Authorization", "Bearer " + m_accessToken.toLatin1());
    request.setRawHeader("Dropbox-API-arg", argument);
    request.setHeader(QNetworkRequest::ContentTypeHeader,
                      QStringLiteral("application/octet-stream"));
    qCInfo(lcSharing).noquote() << "requesting url:" << address.toString() << argument;
    QNetworkReply *reply = m_network.post(request, data);
    m_reply = reply;
    m_sending = false;
    connect(reply, &QNetworkReply::uploadProgress, this, [this](qint64 bytes, qint64 total) {
        m_sending = m_sending || bytes > 0;
        if (total > 0)
            emit uploadProgress(bytes);
    });
    connect(reply, &QNetworkReply::finished, this, [this, reply] { onFinished(reply); });
}

void ApiRequest::abort()
{
    if (!m_reply)
        return;
    m_reply->disconnect(this);
    m_reply->abort();
    m_reply->deleteLater();
    m_reply.clear();
}

void ApiRequest::onFinished(QNetworkReply *reply)
{
    reply->deleteLater();
    m_reply.clear();
    m_answer = HttpAnswer::of(*reply);
    qCInfo(lcSharing).noquote() << "(upload) Server response:" << m_answer.bodyText();
    if (m_answer.isSuccess()) {
        const QByteArray body = m_answer.body; // The slot may begin the next request.
        emit answered(body);
        return;
    }
    if (m_answer.kind == HttpAnswer::Kind::Answered) {
        const QString message = DropboxMessages::parse(m_answer.body).message;
        emit signal_errorOccurred(
            m_answer.status,
            message.isEmpty()
                ? QCoreApplication::translate("velmora::DropboxClient::ApiRequest", "Unknown error")
                : message);
        return;
    }
    qCWarning(lcSharing).noquote() << m_answer.errorString;
    const bool redirected = m_answer.kind == HttpAnswer::Kind::Redirected;
    emit signal_errorOccurred(redirected ? m_answer.status : m_answer.error, m_answer.problem());
}

} // namespace DropboxClient

} // namespace velmora
