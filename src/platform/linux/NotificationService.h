// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DesktopNotification.h"

#include <QDBusConnection>

namespace velmora
{

/// Notifications through "org.freedesktop.Notifications" on the session bus.
class NotificationService : public DesktopNotification
{
    Q_OBJECT
public:
    explicit NotificationService(const QDBusConnection &bus);

    void show(const QString &title, const QString &text) override;

private slots:
    void onActionInvoked(uint id, const QString &action);

private:
    QDBusConnection m_bus;
    uint m_shown = 0; ///< The server's number of the last message; 0 before.
};

} // namespace velmora
