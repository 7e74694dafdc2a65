// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ShortcutResolver.h"

#include <QFileInfo>

namespace velmora
{

QString resolveShortcut(const QString &path)
{
    constexpr int kMaximumLinks = 16;
    QString current = path;
    for (int i = 0; i < kMaximumLinks; ++i) {
        const QFileInfo info(current);
        // On Windows QFileInfo counts .lnk files as symbolic links and reads their target.
        if (!info.isSymLink())
            return current == path || info.exists() ? current : QString();
        current = info.symLinkTarget();
        if (current.isEmpty())
            return {};
    }
    return {};
}

} // namespace velmora
