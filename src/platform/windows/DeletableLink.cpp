// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/DeletableLink.h"

#include "platform/AbandonedFolders.h"
#include "platform/PlatformLog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <windows.h>

namespace velmora
{

namespace
{

const QLatin1String kPrefix("burn-");

const wchar_t *wide(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

/// An absolute path as the system takes it at any length.
QString systemPath(const QString &path)
{
    const QString native = QDir::toNativeSeparators(path);
    return native.startsWith(QLatin1String("\\\\")) ? QStringLiteral("\\\\?\\UNC") + native.mid(1)
                                                    : QStringLiteral("\\\\?\\") + native;
}

/// Streams, other than links, need a path that is not too long.
QString linkName(const QString &file)
{
    const QString suffix = QFileInfo(file).suffix();
    return suffix.isEmpty() ? QStringLiteral("video") : QStringLiteral("video.") + suffix;
}

QString cacheFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
}

} // namespace

bool DeletableLink::create(const QString &file)
{
    // A link to a symbolic link would lead to the file itself again.
    const QFileInfo info(QFileInfo(file).canonicalFilePath());
    if (!info.isFile()) {
        m_error = ERROR_FILE_NOT_FOUND;
        return false;
    }
    const QString cache = cacheFolder();
    QDir().mkpath(cache);
    // Links share their attributes: one that is read-only could not be deleted without changing the
    // video.
    const bool mayLink = info.isWritable();
    return (mayLink && createIn(cache, info.filePath(), false)) ||
           (mayLink && createIn(info.path(), info.filePath(), false)) ||
           createIn(cache, info.filePath(), true);
}

bool DeletableLink::createIn(const QString &folder, const QString &file, bool copy)
{
    auto temporary = std::make_unique<QTemporaryDir>(folder + QLatin1Char('/') + kPrefix +
                                                     QStringLiteral("XXXXXX"));
    auto lock = std::make_unique<QLockFile>(temporary->filePath(kLockFile));
    lock->setStaleLockTime(0);
    if (!temporary->isValid() || !lock->tryLock(0)) {
        m_error = ERROR_CANNOT_MAKE;
        return false;
    }
    const QString link = QDir::toNativeSeparators(temporary->filePath(linkName(file)));
    const QString source = systemPath(file);
    const QString target = systemPath(link);
    if (link.size() >= MAX_PATH) {
        m_error = ERROR_FILENAME_EXCED_RANGE;
        return false;
    }
    const bool made = copy ? CopyFileW(wide(source), wide(target), TRUE)
                           : CreateHardLinkW(wide(target), wide(source), nullptr);
    if (!made) {
        m_error = GetLastError();
        return false;
    }
    m_folder = std::move(temporary);
    m_lock = std::move(lock);
    m_path = link;
    return true;
}

void DeletableLink::sweep()
{
    const QStringList removed = AbandonedFolders::remove(QDir(cacheFolder()), kPrefix, kLockFile);
    for (const QString &folder : removed)
        qCInfo(lcPlatform) << "Removed what a dead burn has left" << folder;
}

} // namespace velmora
