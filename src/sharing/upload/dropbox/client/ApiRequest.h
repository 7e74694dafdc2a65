// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sharing/upload/net/HttpAnswer.h"

#include <QObject>
#include <QPointer>

class QNetworkReply;
class QUrl;

namespace velmora
{

class ServiceNetwork;

namespace DropboxClient
{

/// Requests of the file-sharing service that carry data: their argument travels in a header. One at
/// a time. GUI thread.
class ApiRequest : public QObject
{
    Q_OBJECT
public:
    /// @p network must outlive it.
    explicit ApiRequest(ServiceNetwork &network, QObject *parent = nullptr);
    ~ApiRequest() override;

    void setAccessToken(const QString &token) { m_accessToken = token; }
    void post(const QUrl &address, const QByteArray &argument, const QByteArray &data);
    /// Ends the request without a signal.
    void abort();

signals:
    void uploadProgress(qint64 bytes);
    void answered(const QByteArray &body);
    /// @p code is the HTTP status, or QNetworkReply's error where there is none. answer() has more.
    void signal_errorOccurred(int code, QString message);

public:
    const HttpAnswer &answer() const { return m_answer; }
    /// Whether the service closed the connection while it was sent data. Some do so right after an
    /// early refusal, which is lost with the connection.
    bool isCutOff() const { return m_sending && m_answer.isBroken(); }

private:
    void onFinished(QNetworkReply *reply);

    ServiceNetwork &m_network;
    QPointer<QNetworkReply> m_reply;
    QString m_accessToken;
    HttpAnswer m_answer;
    bool m_sending = false; ///< Data was sent.
};

} // namespace DropboxClient

} // namespace velmora
