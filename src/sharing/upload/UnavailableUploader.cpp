// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/UnavailableUploader.h"

#include "sharing/SharingLog.h"
#include "sharing/upload/UploaderFactory.h"

#include <QCoreApplication>

namespace velmora
{

void UnavailableUploader::startUpload(QString fileName, QString title)
{
    Q_UNUSED(fileName)
    Q_UNUSED(title)
    end(uploadHindrance());
}

void UnavailableUploader::abort()
{
    end(QCoreApplication::translate("velmora::BaseOauth2Uploader", "Operation was canceled"));
}

void UnavailableUploader::end(const QString &error)
{
    if (m_ended)
        return;
    m_ended = true;
    qCWarning(lcSharing).noquote() << "Upload failed:" << error;
    emit failed(error);
}

} // namespace velmora
