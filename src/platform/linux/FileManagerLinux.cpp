// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/FileManager.h"

#include "platform/PlatformLog.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

namespace velmora
{

namespace
{

bool openFolder(const QString &folder)
{
    const bool opened = QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
    if (!opened)
        qCWarning(lcPlatform).noquote() << "Cannot open the folder" << folder;
    return opened;
}

/// Asks "org.freedesktop.FileManager1"; desktops without it open the folder.
class DesktopFileManager : public FileManager
{
public:
    bool showInFolder(const QString &path) override
    {
        const QFileInfo info(path);
        const QString folder = info.absolutePath();
        if (path.isEmpty() || !QFileInfo(folder).isDir())
            return false;
        const QDBusConnection bus = QDBusConnection::sessionBus();
        if (!info.exists() || !bus.isConnected())
            return openFolder(folder);
        const QString service = QStringLiteral("org.freedesktop.FileManager1");
        QDBusMessage call =
            QDBusMessage::createMethodCall(service, QStringLiteral("/org/freedesktop/FileManager1"),
                                           service, QStringLiteral("ShowItems"));
        const QString address =
            QUrl::fromLocalFile(info.absoluteFilePath()).toString(QUrl::FullyEncoded);
        call << QStringList(address) << QString();
        auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(call));
        QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher, [watcher, folder] {
            watcher->deleteLater();
            if (watcher->isError())
                openFolder(folder);
        });
        return true;
    }
};

} // namespace

std::unique_ptr<FileManager> createFileManager()
{
    return std::make_unique<DesktopFileManager>();
}

} // namespace velmora
