// SPDX-License-Identifier: GPL-3.0-or-later
// In place of UploaderFactory.cpp where Qt NetworkAuth is missing.
#include "sharing/upload/UnavailableUploader.h"
#include "sharing/upload/UploadServices.h"
#include "sharing/upload/UploaderFactory.h"

#include <QCoreApplication>

namespace velmora
{

std::unique_ptr<BaseUploader> createUploader(const UploadContext &context)
{
    if (!findUploadService(context.setup.serviceKey))
        return nullptr;
    return std::make_unique<UnavailableUploader>();
}

QString uploadHindrance()
{
    return QCoreApplication::translate(
        "velmora::UploaderFactory",
        "This copy of the program cannot upload videos: it was built without the component that "
        "signs in to services (Qt NetworkAuth).");
}

} // namespace velmora
