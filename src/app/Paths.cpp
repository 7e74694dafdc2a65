// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Paths.h"

#include "app/AppLog.h"

#include <QDir>
#include <QStandardPaths>

namespace velmora
{

QString Paths::dataFolder()
{
    const QString chosen = qEnvironmentVariable("VELMORA_DATA_DIR");
    if (!chosen.isEmpty())
        return QDir(chosen).absolutePath();
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

QString Paths::logFolder()
{
    return dataFolder() + QStringLiteral("/log");
}

QString Paths::cacheFolder()
{
    return dataFolder() + QStringLiteral("/cache/data");
}

QString Paths::translationsFolder()
{
    return dataFolder() + QStringLiteral("/translations");
}

QString Paths::settingsFile()
{
    return dataFolder() + QStringLiteral("/settings.ini");
}

QString Paths::servicesFile()
{
    return dataFolder() + QStringLiteral("/services.ini");
}

QString Paths::historyFile()
{
    return dataFolder() + QStringLiteral("/project_history.json");
}

bool Paths::ensureFolder(const QString &path)
{
    if (!path.isEmpty() && QDir().mkpath(path))
        return true;
    qCWarning(lcApp).noquote() << QStringLiteral("Cannot create folder '%1'").arg(path);
    return false;
}

} // namespace velmora
