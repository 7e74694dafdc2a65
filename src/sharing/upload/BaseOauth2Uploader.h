// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sharing/upload/BaseUploader.h"
#include "sharing/upload/UploadContext.h"
#include "sharing/upload/net/ServiceNetwork.h"

#include <QElapsedTimer>
#include <QNetworkReply>

#include <functional>
#include <memory>

namespace velmora
{

class LoopbackReplyHandler;
class SignIn;
struct HttpAnswer;

/// What the services share: sign-in with its tokens, refresh of the access token, the request in
/// flight, and the one end of an upload.
class BaseOauth2Uploader : public BaseUploader
{
    Q_OBJECT
public:
    explicit BaseOauth2Uploader(const UploadContext &context, QObject *parent = nullptr);
    ~BaseOauth2Uploader() override;

public slots:
    void startUpload(QString fileName, QString title) override;
    void abort() override;

protected:
    /// The file is there: get an access token, then send it.
    virtual void begin() = 0;
    /// There is a fresh access token. @p refreshToken is empty when only that was refreshed.
    virtual void onToken(const QString &accessToken, const QString &refreshToken) = 0;
    /// The service cannot be asked for a token; @p problem is the text for the user. Here, the end.
    virtual void onNoToken(const QString &problem);
    virtual std::unique_ptr<LoopbackReplyHandler> createReplyHandler();
    /// The address of the sign-in page before the flow adds to it.
    virtual QUrl authorizationUrl(const LoopbackReplyHandler &handler) const;
    /// Shows the sign-in page, or fails; here, in the system's browser.
    virtual void openSignInPage(const QUrl &address);
    /// The sign-in has ended in some way, and what shows its page has no use any more.
    virtual void closeSignInPage() {}

    /// Asks the user to sign in.
    void authorize();
    /// Goes on with a code that a sign-in page within the program has shown.
    void acceptCode(const QString &code);
    /// Exchanges a stored refresh token for an access token, or asks the user to sign in.
    void refresh(const QString &refreshToken);

    using ReplySlot = std::function<void()>;
    /// Makes @p reply the one in flight; @p onFinished is called when it ends, and not after the
    /// upload's end.
    void follow(QNetworkReply *reply, const ReplySlot &onFinished);
    QNetworkReply *reply() const { return m_reply; }
    /// Logs and emits the progress of a request's body.
    void reportProgress(qint64 bytes, qint64 total);
    void announceStart(); ///< Emits started(), once.
    void fail(const QString &error);
    void finish(const QString &fileId, const QString &fileUrl);
    bool hasEnded() const { return m_ended; }

    const ServiceSetup &setup() const { return m_context.setup; }
    TokenStore &tokens() { return m_context.tokens; }
    QWidget *window() const { return m_context.window; }
    ServiceNetwork &network() { return m_network; }
    const QString &fileName() const { return m_fileName; }
    const QString &title() const { return m_title; }

private:
    void handleRefreshReply();
    void onGranted(const QString &accessToken, const QString &refreshToken);
    void endSignIn();
    void release();

    UploadContext m_context;
    ServiceNetwork m_network;
    QString m_fileName;
    QString m_title;
    QPointer<SignIn> m_signIn;
    QPointer<QNetworkReply> m_reply;
    QElapsedTimer m_elapsed; ///< Since the first byte.
    bool m_started = false;
    bool m_ended = false;
};

/// The percentage that @p bytes of @p total are, cut off; -1 while the total is not known.
int uploadPercent(qint64 bytes, qint64 total);

} // namespace velmora
