// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/youtube/YoutubeUploader.h"

#include "sharing/SharingLog.h"
#include "sharing/upload/WebLoginDialog.h"
#include "sharing/upload/net/HttpAnswer.h"
#include "sharing/upload/wire/UploadAnswer.h"
#include "sharing/upload/youtube/YoutubeHandler.h"

#include <QJsonDocument>

namespace velmora
{

YoutubeUploader::~YoutubeUploader()
{
    YoutubeUploader::closeSignInPage();
}

std::unique_ptr<LoopbackReplyHandler> YoutubeUploader::createReplyHandler()
{
    auto handler = std::make_unique<YoutubeHandler>(setup().port);
    connect(handler.get(), &YoutubeHandler::convertedCallbackReceived, this,
            &YoutubeUploader::closeSignInPage);
    return handler;
}

void YoutubeUploader::openSignInPage(const QUrl &address)
{
    auto page = createEmbeddedPage();
    if (!page) {
        MultipartUploader::openSignInPage(address);
        return;
    }
    m_dialog = new WebLoginDialog(std::move(page), window());
    connect(m_dialog, &WebLoginDialog::authenticated, this, &YoutubeUploader::acceptCode);
    connect(m_dialog, &WebLoginDialog::failed, this, &YoutubeUploader::fail);
    m_dialog->navigate(address);
    m_dialog->open();
}

void YoutubeUploader::closeSignInPage()
{
    if (!m_dialog)
        return;
    m_dialog->disconnect(this);
    m_dialog->close();
    // Not when it closes: its page may still be on the way to the loopback port.
    m_dialog->deleteLater();
    m_dialog.clear();
}

QUrl YoutubeUploader::uploadUrl() const
{
    return serviceUrl(
        setup().uploadUrl, QStringLiteral("/upload/youtube/v3/videos"),
        QStringLiteral("access_token=%1&part=snippet").arg(queryValue(accessToken())));
}

void YoutubeUploader::onUploaded(const UploadAnswer &answer)
{
    m_videoId = answer.id();
    QNetworkRequest request(
        serviceUrl(setup().apiUrl, QStringLiteral("/youtube/v3/videos"),
                   QStringLiteral("access_token=%1&part=snippet").arg(queryValue(accessToken()))));
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
    const QJsonDocument named(answer.withTitle(title()));
    follow(network().put(request, named.toJson(QJsonDocument::Compact)),
           [this] { handleNameReply(); });
}

void YoutubeUploader::handleNameReply()
{
    const HttpAnswer answer = HttpAnswer::of(*reply());
    qCInfo(lcSharing).noquote() << "(setName) Server response:" << answer.bodyText();
    // The video is there, with or without its title.
    const QUrl page = serviceUrl(setup().webUrl, QStringLiteral("/watch"),
                                 QStringLiteral("v=%1").arg(queryValue(m_videoId)));
    finish(m_videoId, page.toString(QUrl::FullyEncoded));
}

} // namespace velmora
