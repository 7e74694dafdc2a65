// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sharing/upload/BaseOauth2Uploader.h"

namespace velmora
{

class DropboxUpload;

/// Puts a video into the program's folder at the file-sharing service. Signs in; the transfer is
/// DropboxUpload's.
class DropboxUploader : public BaseOauth2Uploader
{
    Q_OBJECT
public:
    explicit DropboxUploader(const UploadContext &context, QObject *parent = nullptr);
    ~DropboxUploader() override;

public slots:
    void abort() override;

protected:
    void begin() override;
    void onToken(const QString &accessToken, const QString &refreshToken) override;
    void onNoToken(const QString &problem) override;
    std::unique_ptr<LoopbackReplyHandler> createReplyHandler() override;
    QUrl authorizationUrl(const LoopbackReplyHandler &handler) const override;

private:
    void onTokenExpired(const QString &refreshToken);
    void onUploaded(const QString &path);

    DropboxUpload *m_upload = nullptr; ///< A child, made when the file is known.
};

} // namespace velmora
