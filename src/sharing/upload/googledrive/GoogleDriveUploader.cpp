// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/googledrive/GoogleDriveUploader.h"

#include "sharing/SharingLog.h"
#include "sharing/upload/wire/UploadAnswer.h"

#include <QHttpMultiPart>
#include <QJsonDocument>
#include <QJsonObject>

namespace velmora
{

QUrl GoogleDriveUploader::uploadUrl() const
{
    return serviceUrl(
        setup().uploadUrl, QStringLiteral("/upload/drive/v2/files"),
        QStringLiteral("access_token=%1&uploadType=multipart").arg(queryValue(accessToken())));
}

void GoogleDriveUploader::addParts(QHttpMultiPart &body) const
{
    const QJsonObject data{{QStringLiteral("title"), title()},
                           {QStringLiteral("description"), title()}};
    const QByteArray text = QJsonDocument(data).toJson(QJsonDocument::Compact);
    qCInfo(lcSharing).noquote() << "TITLE DATA:" << QString::fromUtf8(text);
    QHttpPart metadata;
    metadata.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
    metadata.setBody(text);
    body.append(metadata);
}

void GoogleDriveUploader::onUploaded(const UploadAnswer &answer)
{
    finish(answer.id(), answer.alternateLink());
}

} // namespace velmora
