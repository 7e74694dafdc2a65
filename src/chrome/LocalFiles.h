// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMimeData>
#include <QStringList>
#include <QUrl>

namespace velmora
{

/// The paths of the files and folders of this computer that @p data carries, in their order; other
/// addresses are left out.
inline QStringList localFiles(const QMimeData &data)
{
    QStringList files;
    const QList<QUrl> urls = data.urls();
    for (const QUrl &url : urls) {
        if (url.isLocalFile())
            files.append(url.toLocalFile());
    }
    return files;
}

} // namespace velmora
