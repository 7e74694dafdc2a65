// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sharing/upload/BaseOauth2Uploader.h"

class QHttpMultiPart;

namespace velmora
{

struct UploadAnswer;

/// An upload in one request of several parts, the file last and read from disk while it is sent.
class MultipartUploader : public BaseOauth2Uploader
{
    Q_OBJECT
public:
    using BaseOauth2Uploader::BaseOauth2Uploader;

public slots:
    void handleNetworkReply();
    void uploadProgress(qint64 bytes, qint64 total);

protected:
    void begin() override;
    void onToken(const QString &accessToken, const QString &refreshToken) override;
    /// The address of the upload, with the access token.
    virtual QUrl uploadUrl() const = 0;
    /// Parts before the file.
    virtual void addParts(QHttpMultiPart &body) const { Q_UNUSED(body) }
    virtual void onUploaded(const UploadAnswer &answer) = 0;
    const QString &accessToken() const { return m_accessToken; }

private:
    void send();

    QString m_accessToken;
};

} // namespace velmora
