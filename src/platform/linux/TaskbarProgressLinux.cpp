// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/TaskbarProgress.h"

#include "platform/null/NullTaskbarProgress.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QGuiApplication>
#include <QVariantMap>

#include <algorithm>

namespace velmora
{

namespace
{

/// Tells the launchers that listen to "com.canonical.Unity.LauncherEntry"; they find the button by
/// the program's desktop file, so that the window itself is not needed.
class LauncherEntry : public TaskbarProgress
{
public:
    ~LauncherEntry() override { setVisible(false); }

    void setWindow(QWindow *) override {}

    void setVisible(bool visible) override
    {
        if (visible != m_visible) {
            m_visible = visible;
            send();
        }
    }

    void setPaused(bool paused) override
    {
        if (paused != m_paused) {
            m_paused = paused;
            send();
        }
    }

    void setValue(int percent) override
    {
        const int value = std::clamp(percent, 0, 100);
        if (value != m_percent) {
            m_percent = value;
            send();
        }
    }

private:
    void send() const
    {
        const QString desktopFile = QGuiApplication::desktopFileName();
        const QVariantMap properties = {
            {QStringLiteral("progress"), m_percent / 100.0},
            // Launchers have no look for a pause; a bar that stands still would look stuck.
            {QStringLiteral("progress-visible"), m_visible && !m_paused},
        };
        QDBusMessage update = QDBusMessage::createSignal(
            QStringLiteral("/com/canonical/unity/launcherentry/1"),
            QStringLiteral("com.canonical.Unity.LauncherEntry"), QStringLiteral("Update"));
        update << QStringLiteral("application://%1.desktop").arg(desktopFile) << properties;
        QDBusConnection::sessionBus().send(update);
    }

    bool m_visible = false;
    bool m_paused = false;
    int m_percent = 0;
};

} // namespace

std::unique_ptr<TaskbarProgress> createTaskbarProgress()
{
    if (QDBusConnection::sessionBus().isConnected())
        return std::make_unique<LauncherEntry>();
    return std::make_unique<NullTaskbarProgress>();
}

} // namespace velmora
