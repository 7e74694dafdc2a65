// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/UploadServices.h"

#include <algorithm>

namespace velmora
{

// Names of services are the same in every language. Two of them are written differently in
// different places.
const QVector<UploadService> &uploadServices()
{
    static const QVector<UploadService> services = {
        {QStringLiteral("youtube"), QStringLiteral("Youtube"), QStringLiteral("Youtube"),
         QStringLiteral("YOUTUBE"), QStringLiteral("service-video")},
        {QStringLiteral("googledrive"), QStringLiteral("Google Drive"),
         QStringLiteral("Google Drive"), QStringLiteral("GOOGLE DRIVE"),
         QStringLiteral("service-drive")},
        {QStringLiteral("dropbox"), QStringLiteral("DropBox"), QStringLiteral("Dropbox"),
         QStringLiteral("DROPBOX"), QStringLiteral("service-box")},
    };
    return services;
}

const UploadService *findUploadService(const QString &key)
{
    const QVector<UploadService> &all = uploadServices();
    const auto found = std::find_if(all.begin(), all.end(), [&key](const UploadService &service) {
        return service.key == key;
    });
    return found == all.end() ? nullptr : found;
}

} // namespace velmora
