// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sharing/upload/signin/AnswerPage.h"
#include "sharing/upload/signin/LoopbackServer.h"

#include <QOAuthHttpServerReplyHandler>

namespace velmora
{

/// Takes the browser's return from a sign-in and the token endpoint's answer. The server of the
/// base class stays closed: it takes any path, binds no state and bounds nothing. Of this one only
/// a request to the callback's path that carries the sign-in's state counts; everything else is
/// answered and forgotten. GUI thread.
class LoopbackReplyHandler : public QOAuthHttpServerReplyHandler
{
    Q_OBJECT
public:
    explicit LoopbackReplyHandler(quint16 port, QObject *parent = nullptr);

    /// Begins to listen on 127.0.0.1; false when the port is taken.
    bool open();
    /// Frees the port.
    void shut() { m_loopback.close(); }
    /// What the callback's "state" must be.
    void setState(const QString &state) { m_state = state; }
    /// Goes on as if the browser had come back with @p code.
    void acceptCode(const QString &code);

    QString callback() const override;

public slots:
    void networkReplyFinished(QNetworkReply *reply) override;

signals:
    /// The user or the service said no; at most once.
    void denied();
    /// The token endpoint's answer holds no token.
    void tokensRefused();

protected:
    /// The path of the callback, with its slash.
    virtual QString path() const { return QStringLiteral("/"); }
    quint16 signInPort() const { return m_port; }

private:
    LoopbackServer::Reply onRequest(const CallbackRequest &request);
    void tell(bool granted, const QVariantMap &values);

    const quint16 m_port;
    QString m_state;
    bool m_decided = false;
    AnswerPage m_page;
    LoopbackServer m_loopback;
};

} // namespace velmora
