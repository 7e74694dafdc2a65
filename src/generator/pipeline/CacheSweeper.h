// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velmora
{

class TaskThread;

/// Removes what renders that were killed have left behind. A render holds a lock file in its cache
/// folder as long as it lives, so that the folders of other running renders are left alone.
namespace CacheSweeper
{

/// Cache folders of renders are named with this prefix.
inline const QLatin1String kFolderPrefix("render-");
/// The lock file in a cache folder.
inline const QLatin1String kLockFile("render.lock");
/// The file in a cache folder that names the unfinished video outside of it.
inline const QLatin1String kOutputNote("output.txt");

/// Removes the cache folders of dead renders below @p cacheFolder, with their unfinished videos.
/// Returns how many folders were removed. Any thread.
int sweep(const QString &cacheFolder);
/// Removes the locks of dead renders in @p lockFolder, see OutputTarget.
void sweepLocks(const QString &lockFolder);
/// Both, with the locks that all renders of the user share.
void sweepAll(const QString &cacheFolder);
/// Has that done on @p thread.
void sweepAllOn(TaskThread &thread, const QString &cacheFolder);
/// The folder of these locks.
QString lockFolder();

} // namespace CacheSweeper

} // namespace velmora
