// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sharing/upload/MultipartUploader.h"

namespace velmora
{

class WebLoginDialog;

/// Publishes a video on the video service: one request with the file, one that sets its title. The
/// sign-in page is shown within the program where it can show pages.
class YoutubeUploader : public MultipartUploader
{
    Q_OBJECT
public:
    using MultipartUploader::MultipartUploader;
    ~YoutubeUploader() override;

public slots:
    void handleNameReply();

protected:
    std::unique_ptr<LoopbackReplyHandler> createReplyHandler() override;
    void openSignInPage(const QUrl &address) override;
    void closeSignInPage() override;
    QUrl uploadUrl() const override;
    void onUploaded(const UploadAnswer &answer) override;

private:
    QPointer<WebLoginDialog> m_dialog;
    QString m_videoId;
};

} // namespace velmora
