// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/BaseOauth2Uploader.h"

#include "sharing/SharingLog.h"
#include "sharing/upload/net/HttpAnswer.h"
#include "sharing/upload/signin/LoopbackReplyHandler.h"
#include "sharing/upload/signin/SignIn.h"
#include "sharing/upload/wire/TokenAnswer.h"

#include <QDesktopServices>
#include <QFile>

namespace velmora
{

BaseOauth2Uploader::BaseOauth2Uploader(const UploadContext &context, QObject *parent)
    : BaseUploader(parent), m_context(context), m_network(context.setup.network)
{
}

BaseOauth2Uploader::~BaseOauth2Uploader()
{
    // The objects of the base class outlive the members to which they refer.
    m_ended = true;
    delete m_signIn;
    delete m_reply;
}

void BaseOauth2Uploader::startUpload(QString fileName, QString title)
{
    qCInfo(lcSharing).noquote() << QStringLiteral("Started uploading: '%1'").arg(fileName);
    m_fileName = fileName;
    m_title = title;
    if (!QFile::exists(fileName))
        fail(tr("source file not found"));
    else if (!QFile(fileName).open(QIODevice::ReadOnly))
        fail(tr("can't open source file for reading"));
    else
        begin();
}

void BaseOauth2Uploader::abort()
{
    fail(tr("Operation was canceled"));
}

void BaseOauth2Uploader::onNoToken(const QString &problem)
{
    fail(problem);
}

std::unique_ptr<LoopbackReplyHandler> BaseOauth2Uploader::createReplyHandler()
{
    return std::make_unique<LoopbackReplyHandler>(setup().port);
}

QUrl BaseOauth2Uploader::authorizationUrl(const LoopbackReplyHandler &handler) const
{
    Q_UNUSED(handler)
    return setup().authorizationUrl;
}

void BaseOauth2Uploader::authorize()
{
    endSignIn();
    auto handler = createReplyHandler();
    ServiceSetup changed = setup();
    changed.authorizationUrl = authorizationUrl(*handler);
    m_signIn = new SignIn(changed, &m_network, std::move(handler), this);
    connect(m_signIn, &SignIn::openPage, this, [this](const QUrl &address) {
        // Without these the service hands out a refresh token only the first time.
        openSignInPage(QUrl(address.toString(QUrl::FullyEncoded) +
                                QStringLiteral("&access_type=offline&prompt=consent"),
                            QUrl::StrictMode));
    });
    connect(m_signIn, &SignIn::granted, this, &BaseOauth2Uploader::onGranted);
    connect(m_signIn, &SignIn::failed, this, [this] { fail(tr("Authorization error")); });
    emit signInStarted();
    if (!m_signIn->start())
        fail(tr("Authorization error"));
}

void BaseOauth2Uploader::openSignInPage(const QUrl &address)
{
    if (QDesktopServices::openUrl(address))
        emit browserOpened();
    else
        fail(tr("There is no program to show the sign-in page."));
}

void BaseOauth2Uploader::acceptCode(const QString &code)
{
    if (m_signIn)
        m_signIn->acceptCode(code);
}

void BaseOauth2Uploader::onGranted(const QString &accessToken, const QString &refreshToken)
{
    endSignIn();
    if (m_ended)
        return;
    emit signInEnded();
    onToken(accessToken, refreshToken);
}

void BaseOauth2Uploader::refresh(const QString &refreshToken)
{
    QNetworkRequest request(setup().tokenUrl);
    request.setHeader(QNetworkRequest::ContentTypeHeader,
                      QStringLiteral("application/x-www-form-urlencoded"));
    const QString body =
        QStringLiteral("client_secret=%1&grant_type=refresh_token&refresh_token=%2&client_id=%3")
            .arg(queryValue(setup().clientSecret), queryValue(refreshToken),
                 queryValue(setup().clientId));
    follow(m_network.post(request, body.toLatin1()), [this] { handleRefreshReply(); });
}

void BaseOauth2Uploader::handleRefreshReply()
{
    const HttpAnswer answer = HttpAnswer::of(*m_reply);
    if (!answer.isAnswer()) {
        // A sign-in would meet the same trouble.
        qCWarning(lcSharing).noquote() << "No answer to the refresh:" << answer.errorString;
        onNoToken(answer.problem());
        return;
    }
    const TokenAnswer tokens = TokenAnswer::fromJson(answer.body);
    if (!tokens.problem.isEmpty()) {
        qCWarning(lcSharing) << "Inavlid answer";
        authorize();
    } else if (tokens.accessToken().isEmpty()) {
        qCWarning(lcSharing) << "Failed to update access token";
        authorize();
    } else {
        onToken(tokens.accessToken(), tokens.refreshToken());
    }
}

void BaseOauth2Uploader::follow(QNetworkReply *reply, const ReplySlot &onFinished)
{
    m_reply = reply;
    connect(reply, &QNetworkReply::finished, this, [this, reply, onFinished] {
        reply->deleteLater();
        if (!m_ended)
            onFinished();
    });
}

void BaseOauth2Uploader::reportProgress(qint64 bytes, qint64 total)
{
    const int percent = uploadPercent(bytes, total);
    if (m_ended || percent < 0)
        return;
    qCDebug(lcSharing) << "uploaded:" << bytes << "of" << total;
    emit progress(percent);
}

void BaseOauth2Uploader::announceStart()
{
    if (m_started)
        return;
    m_started = true;
    m_elapsed.start();
    emit started();
    qCInfo(lcSharing) << "Started uploading";
}

void BaseOauth2Uploader::fail(const QString &error)
{
    if (m_ended)
        return;
    release();
    qCWarning(lcSharing).noquote() << "Upload failed:" << error;
    emit failed(error);
}

void BaseOauth2Uploader::finish(const QString &fileId, const QString &fileUrl)
{
    if (m_ended)
        return;
    release();
    qCInfo(lcSharing) << "Uploaded in" << m_elapsed.elapsed() << "ms";
    emit finished(fileId, fileUrl);
}

void BaseOauth2Uploader::release()
{
    m_ended = true;
    endSignIn();
    if (m_reply && m_reply->isRunning())
        m_reply->abort();
}

// May be called out of the sign-in itself, which hence cannot be deleted here.
void BaseOauth2Uploader::endSignIn()
{
    if (!m_signIn)
        return;
    m_signIn->stop();
    m_signIn->deleteLater();
    m_signIn.clear();
    closeSignInPage();
}

int uploadPercent(qint64 bytes, qint64 total)
{
    if (total <= 0 || bytes < 0)
        return -1;
    return static_cast<int>(static_cast<double>(std::min(bytes, total)) * 100.0 /
                            static_cast<double>(total));
}

} // namespace velmora
