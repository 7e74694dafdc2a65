// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/FileManager.h"

#include "platform/PlatformLog.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>

namespace velmora
{

namespace
{

class Explorer : public FileManager
{
public:
    bool showInFolder(const QString &path) override
    {
        const QFileInfo info(path);
        if (path.isEmpty() || !QFileInfo(info.absolutePath()).isDir())
            return false;
        QProcess explorer;
        explorer.setProgram(QStringLiteral("explorer.exe"));
        // explorer.exe does not take the quotes where they are put by default.
        const QString target =
            QDir::toNativeSeparators(info.exists() ? info.absoluteFilePath() : info.absolutePath());
        explorer.setNativeArguments(
            (info.exists() ? QStringLiteral("/select, \"%1\"") : QStringLiteral("\"%1\""))
                .arg(target));
        const bool started = explorer.startDetached();
        if (!started)
            qCWarning(lcPlatform).noquote() << "Cannot start explorer.exe";
        return started;
    }
};

} // namespace

std::unique_ptr<FileManager> createFileManager()
{
    return std::make_unique<Explorer>();
}

} // namespace velmora
