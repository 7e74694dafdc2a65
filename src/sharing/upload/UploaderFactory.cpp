// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/UploaderFactory.h"

#include "sharing/upload/dropbox/DropboxUploader.h"
#include "sharing/upload/googledrive/GoogleDriveUploader.h"
#include "sharing/upload/youtube/YoutubeUploader.h"

namespace velmora
{

std::unique_ptr<BaseUploader> createUploader(const UploadContext &context)
{
    const QString &key = context.setup.serviceKey;
    if (key == QLatin1String("youtube"))
        return std::make_unique<YoutubeUploader>(context);
    if (key == QLatin1String("googledrive"))
        return std::make_unique<GoogleDriveUploader>(context);
    if (key == QLatin1String("dropbox"))
        return std::make_unique<DropboxUploader>(context);
    return nullptr;
}

QString uploadHindrance()
{
    return {};
}

} // namespace velmora
