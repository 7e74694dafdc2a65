// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QUrl>
#include <QVariantMap>

#include <memory>

class QNetworkAccessManager;
class QOAuth2AuthorizationCodeFlow;

namespace velmora
{

class LoopbackReplyHandler;
struct ServiceSetup;

/// One sign-in with the authorization code flow, a proof key (S256) and a state of its own. It
/// listens for the browser from start() until it is destroyed, which also is how it is given up.
/// GUI thread.
class SignIn : public QObject
{
    Q_OBJECT
public:
    /// @p network must outlive it, and serves nobody else until the sign-in ends.
    SignIn(const ServiceSetup &setup, QNetworkAccessManager *network,
           std::unique_ptr<LoopbackReplyHandler> handler, QObject *parent = nullptr);
    ~SignIn() override;

    /// False when the port for the browser's return is taken; then nothing more comes.
    bool start();
    /// Frees the port at once; nothing more comes.
    void stop();
    /// Goes on with a code that came another way than through the browser's return.
    void acceptCode(const QString &code);

signals:
    void openPage(const QUrl &address); ///< The user must see this page; once.
    /// Ends the sign-in; @p refreshToken may be empty.
    void granted(const QString &accessToken, const QString &refreshToken);
    void failed(); ///< Ends the sign-in.

private:
    void configure(const ServiceSetup &setup);
    QVariantMap tokenParameters(const ServiceSetup &setup, const QString &verifier) const;

    QNetworkAccessManager *m_network;
    std::unique_ptr<LoopbackReplyHandler> m_handler;
    QOAuth2AuthorizationCodeFlow *m_flow;
    QString m_code;            ///< That the browser brought.
    bool m_exchanging = false; ///< The code, for tokens.
};

} // namespace velmora
