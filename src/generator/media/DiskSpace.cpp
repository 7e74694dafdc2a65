// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/media/DiskSpace.h"

#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

namespace velmora
{

bool failedForSpace(const QFile &file, qint64 needed)
{
    if (file.error() == QFileDevice::ResourceError)
        return true;
    // Discs and the like have no room either, but that is not what keeps them from being written.
    const QStorageInfo storage(QFileInfo(file).absolutePath());
    return storage.isValid() && !storage.isReadOnly() && storage.bytesAvailable() < needed;
}

} // namespace velmora
