// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velmora
{

/// The program's folders. The per-user data folder is QStandardPaths::AppDataLocation, or the
/// folder named by the environment variable VELMORA_DATA_DIR (tests, portable use).
namespace Paths
{

QString dataFolder();
QString logFolder();          ///< dataFolder + "/log"
QString cacheFolder();        ///< dataFolder + "/cache/data"
QString translationsFolder(); ///< dataFolder + "/translations"
QString settingsFile();       ///< dataFolder + "/settings.ini"
QString servicesFile();       ///< dataFolder + "/services.ini"
QString historyFile();        ///< dataFolder + "/project_history.json"
/// Creates a folder with its parents; false with a log line when it cannot be made.
bool ensureFolder(const QString &path);

} // namespace Paths

} // namespace velmora
