// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/MultipartUploader.h"

#include "sharing/SharingLog.h"
#include "sharing/upload/net/HttpAnswer.h"
#include "sharing/upload/net/OneTimeFile.h"
#include "sharing/upload/wire/UploadAnswer.h"

#include <QHttpMultiPart>

namespace velmora
{

void MultipartUploader::begin()
{
    const QString stored = tokens().load(setup().tokenKey);
    if (stored.isEmpty())
        authorize();
    else
        refresh(stored);
}

void MultipartUploader::onToken(const QString &accessToken, const QString &refreshToken)
{
    m_accessToken = accessToken;
    if (!refreshToken.isEmpty())
        tokens().save(setup().tokenKey, refreshToken);
    send();
}

void MultipartUploader::send()
{
    auto body = std::make_unique<QHttpMultiPart>(QHttpMultiPart::MixedType);
    auto *file = new OneTimeFile(fileName(), body.get());
    if (!file->open(QIODevice::ReadOnly)) {
        fail(tr("can't open source file for reading"));
        return;
    }
    addParts(*body);
    QHttpPart video;
    video.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("video/*"));
    video.setBodyDevice(file);
    body->append(video);

    QNetworkRequest request(uploadUrl());
    request.setRawHeader("Authorization", "BEARER " + m_accessToken.toLatin1());
    qCInfo(lcSharing).noquote() << "requesting url:" << request.url().toString();
    QNetworkReply *upload = network().post(request, body.get());
    body.release()->setParent(upload);
    connect(upload, &QNetworkReply::uploadProgress, this, &MultipartUploader::uploadProgress);
    follow(upload, [this] { handleNetworkReply(); });
    announceStart();
}

void MultipartUploader::uploadProgress(qint64 bytes, qint64 total)
{
    reportProgress(bytes, total);
}

void MultipartUploader::handleNetworkReply()
{
    const HttpAnswer answer = HttpAnswer::of(*reply());
    qCInfo(lcSharing).noquote() << "(upload) Server response:" << answer.bodyText();
    const UploadAnswer upload = UploadAnswer::parse(answer.body);
    if (answer.isSuccess() && !upload.isError) {
        onUploaded(upload);
        return;
    }
    if (answer.kind != HttpAnswer::Kind::Answered)
        qCWarning(lcSharing).noquote() << answer.errorString;
    QString message = answer.problem();
    if (message.isEmpty())
        message = upload.message.isEmpty() ? tr("Unknown error") : upload.message;
    fail(tr("Error uploading video:%1").arg(message));
}

} // namespace velmora
