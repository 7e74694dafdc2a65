// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/AbandonedFolders.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLockFile>

namespace velmora
{

namespace
{

constexpr qint64 kYoungestUnlocked = 60; // s; a folder is locked right after it was made

bool isBeingMade(const QDir &folder, const QString &lockFile)
{
    if (folder.exists(lockFile))
        return false;
    const QDateTime made = QFileInfo(folder.path()).lastModified();
    return made.secsTo(QDateTime::currentDateTime()) < kYoungestUnlocked;
}

} // namespace

QStringList AbandonedFolders::remove(const QDir &parent, const QString &prefix,
                                     const QString &lockFile,
                                     const std::function<bool(const QDir &)> &mayGo)
{
    QStringList removed;
    const QStringList names = parent.entryList(
        {prefix + QLatin1Char('*')}, QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks);
    for (const QString &name : names) {
        QDir folder(parent.filePath(name));
        if (isBeingMade(folder, lockFile))
            continue;
        QLockFile lock(folder.filePath(lockFile));
        lock.setStaleLockTime(0);
        if (!lock.tryLock(0))
            continue;
        const bool goes = mayGo(folder);
        lock.unlock();
        if (goes && folder.removeRecursively())
            removed.append(folder.path());
    }
    return removed;
}

} // namespace velmora
