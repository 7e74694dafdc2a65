// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/DesktopNotification.h"

#include "platform/PlatformLog.h"
#include "platform/linux/NotificationService.h"
#include "platform/null/NullDesktopNotification.h"

#include <QCoreApplication>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>
#include <QVariantMap>

namespace velmora
{

namespace
{

const QLatin1String kService("org.freedesktop.Notifications");
const QLatin1String kPath("/org/freedesktop/Notifications");

} // namespace

NotificationService::NotificationService(const QDBusConnection &bus) : m_bus(bus)
{
    m_bus.connect(kService, kPath, kService, QStringLiteral("ActionInvoked"), this,
                  SLOT(onActionInvoked(uint, QString)));
}

void NotificationService::show(const QString &title, const QString &text)
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(kService, kPath, kService, QStringLiteral("Notify"));
    const QStringList actions = {
        QStringLiteral("default"),
        QCoreApplication::translate("DesktopNotification", "Show the window")};
    const QVariantMap hints = {
        {QStringLiteral("desktop-entry"), QGuiApplication::desktopFileName()}};
    constexpr int kServersChoice = -1;
    // Servers read the text as simple markup.
    call << QCoreApplication::applicationName() << m_shown << QGuiApplication::desktopFileName()
         << title << text.toHtmlEscaped() << actions << hints << kServersChoice;
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<uint> reply = *watcher;
        if (reply.isError())
            qCInfo(lcPlatform).noquote() << "No notification:" << reply.error().message();
        else
            m_shown = reply.value();
    });
}

void NotificationService::onActionInvoked(uint id, const QString &action)
{
    // Every program on the bus hears of all notifications.
    if (id == m_shown && m_shown != 0 && action == QLatin1String("default"))
        emit activated();
}

std::unique_ptr<DesktopNotification> createDesktopNotification()
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.isConnected())
        return std::make_unique<NotificationService>(bus);
    return std::make_unique<NullDesktopNotification>();
}

} // namespace velmora
