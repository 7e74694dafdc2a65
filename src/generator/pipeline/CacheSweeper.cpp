// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/CacheSweeper.h"

#include "app/Paths.h"
#include "app/TaskThread.h"
#include "generator/GeneratorLog.h"
#include "generator/encoding/VideoUtil.h"
#include "generator/pipeline/OutputTarget.h"
#include "platform/AbandonedFolders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>

namespace velmora
{

namespace
{

constexpr qint64 kLongestNote = 32 * 1024;

/// False while something keeps it, as an encoder may that is about to end.
bool removeUnfinishedVideo(const QDir &folder)
{
    QFile note(folder.filePath(CacheSweeper::kOutputNote));
    if (!note.open(QIODevice::ReadOnly))
        return true;
    const QString video = QString::fromUtf8(note.read(kLongestNote));
    if (!OutputTarget::isTemporaryName(QFileInfo(video).fileName()))
        return true;
    bool gone = true;
    for (const QString &file : {video, VideoUtil::partFile(video)}) {
        if (QFile::remove(file))
            qCInfo(generatorLog) << "Removed the unfinished video" << file;
        gone = gone && !QFileInfo::exists(file);
    }
    return gone;
}

} // namespace

int CacheSweeper::sweep(const QString &cacheFolder)
{
    // Without the folder nobody would know of the video.
    const QStringList removed = AbandonedFolders::remove(QDir(cacheFolder), kFolderPrefix,
                                                         kLockFile, removeUnfinishedVideo);
    for (const QString &folder : removed)
        qCInfo(generatorLog) << "Removed the cache of a dead render" << folder;
    return removed.size();
}

void CacheSweeper::sweepLocks(const QString &lockFolder)
{
    const QDir folder(lockFolder);
    const QStringList names = folder.entryList({QStringLiteral("*.lock")}, QDir::Files);
    for (const QString &name : names) {
        QLockFile lock(folder.filePath(name));
        lock.setStaleLockTime(0);
        if (lock.tryLock(0))
            lock.unlock(); // which removes the file
    }
}

void CacheSweeper::sweepAll(const QString &cacheFolder)
{
    sweep(cacheFolder);
    sweepLocks(lockFolder());
}

void CacheSweeper::sweepAllOn(TaskThread &thread, const QString &cacheFolder)
{
    thread.add([cacheFolder] {
        sweepAll(cacheFolder);
        return TaskThread::Report([] {});
    });
}

QString CacheSweeper::lockFolder()
{
    return Paths::cacheFolder() + QStringLiteral("/locks");
}

} // namespace velmora
