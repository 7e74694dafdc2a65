// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sharing/upload/MultipartUploader.h"

namespace velmora
{

/// Stores a video in the user's drive, in one request that carries its name and its content.
class GoogleDriveUploader : public MultipartUploader
{
    Q_OBJECT
public:
    using MultipartUploader::MultipartUploader;

protected:
    QUrl uploadUrl() const override;
    void addParts(QHttpMultiPart &body) const override;
    void onUploaded(const UploadAnswer &answer) override;
};

} // namespace velmora
