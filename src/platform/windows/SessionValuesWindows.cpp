// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SessionValues.h"

#include "platform/PlatformLog.h"
#include "platform/SessionId.h"

#include <QSettings>

namespace velmora
{

namespace
{

// A QSettings of its own for every call makes the object usable from any thread; the registry is
// not cached, so each call sees the other process's last write.
class SessionKey : public SessionValues
{
public:
    explicit SessionKey(const QString &key) : m_key(key) {}

    void clear() override
    {
        QSettings settings(m_key, QSettings::NativeFormat);
        settings.remove(QString());
        flush(settings);
    }

    void setPaused(bool paused) override { set(QStringLiteral("is_paused"), paused); }
    void setCanceled(bool canceled) override { set(QStringLiteral("is_canceled"), canceled); }
    bool isPaused() const override { return get(QStringLiteral("is_paused")); }
    bool isCanceled() const override { return get(QStringLiteral("is_canceled")); }

private:
    void set(const QString &name, bool value)
    {
        QSettings settings(m_key, QSettings::NativeFormat);
        settings.setValue(name, value ? 1 : 0);
        flush(settings);
    }

    bool get(const QString &name) const
    {
        const QSettings settings(m_key, QSettings::NativeFormat);
        return settings.value(name).toInt() == 1;
    }

    void flush(QSettings &settings) const
    {
        settings.sync();
        if (settings.status() != QSettings::NoError)
            qCWarning(lcPlatform) << "Cannot write session values" << m_key;
    }

    const QString m_key;
};

} // namespace

std::unique_ptr<SessionValues> createSessionValues(const QString &sessionId,
                                                   const QString &dataFolder)
{
    Q_UNUSED(dataFolder)
    return std::make_unique<SessionKey>(
        QStringLiteral("HKEY_CURRENT_USER\\Software\\Corvel Velmora\\Sessions\\%1")
            .arg(sessionIdToName(sessionId)));
}

} // namespace velmora
