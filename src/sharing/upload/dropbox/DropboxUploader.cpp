// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/dropbox/DropboxUploader.h"

#include "sharing/upload/dropbox/DropBoxReplyHandler.h"
#include "sharing/upload/dropbox/DropboxUpload.h"

namespace velmora
{

DropboxUploader::DropboxUploader(const UploadContext &context, QObject *parent)
    : BaseOauth2Uploader(context, parent)
{
}

DropboxUploader::~DropboxUploader()
{
    delete m_upload; // It uses the network manager, a member.
}

void DropboxUploader::begin()
{
    m_upload = new DropboxUpload(fileName(), setup(), tokens(), network(), this);
    connect(m_upload, &DropboxUpload::uploaderStarted, this, &DropboxUploader::announceStart);
    connect(m_upload, &DropboxUpload::uploaderProgress, this, &DropboxUploader::reportProgress);
    connect(m_upload, &DropboxUpload::uploaderFailed, this, &DropboxUploader::fail);
    connect(m_upload, &DropboxUpload::uploaderFinished, this, &DropboxUploader::onUploaded);
    connect(m_upload, &DropboxUpload::tokenExpired, this, &DropboxUploader::onTokenExpired);
    m_upload->upload();
}

void DropboxUploader::onTokenExpired(const QString &refreshToken)
{
    if (refreshToken.isEmpty())
        authorize();
    else
        refresh(refreshToken);
}

void DropboxUploader::onToken(const QString &accessToken, const QString &refreshToken)
{
    m_upload->onTokenReceived(accessToken, refreshToken);
}

void DropboxUploader::onNoToken(const QString &problem)
{
    m_upload->onTokenUnavailable(problem);
}

void DropboxUploader::abort()
{
    // The transfer reports the end; a sign-in has no transfer yet.
    if (m_upload)
        m_upload->abort();
    BaseOauth2Uploader::abort();
}

std::unique_ptr<LoopbackReplyHandler> DropboxUploader::createReplyHandler()
{
    return std::make_unique<DropBoxReplyHandler>(setup().port);
}

QUrl DropboxUploader::authorizationUrl(const LoopbackReplyHandler &handler) const
{
    QUrl url = setup().authorizationUrl;
    url.setQuery(QStringLiteral("client_id=%1&redirect_uri=%2&response_type=code")
                     .arg(queryValue(setup().clientId), queryValue(handler.callback())));
    return url;
}

void DropboxUploader::onUploaded(const QString &path)
{
    const QString name = path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
    const QUrl page =
        serviceUrl(setup().webUrl, QStringLiteral("/home/Apps/%1").arg(queryValue(setup().folder)),
                   QStringLiteral("preview=%1").arg(queryValue(name)));
    finish(path, page.toString(QUrl::FullyEncoded));
}

} // namespace velmora
