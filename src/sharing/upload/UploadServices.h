// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVector>

namespace velmora
{

/// A service to which videos can be uploaded, and what it is called in which place.
struct UploadService {
    QString key; ///< "youtube", "googledrive" or "dropbox"; also its configuration section.
    QString progressName; ///< In "Uploading %1 to %2".
    QString successName;  ///< In the success dialog.
    QString buttonText;   ///< On the final page and in the menu of services.
    QString iconName;     ///< For Theme::icon().
};

/// All services in the order of their menu.
const QVector<UploadService> &uploadServices();
/// The service of that key, or null.
const UploadService *findUploadService(const QString &key);

} // namespace velmora
