// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/TokenStore.h"

#include "platform/CoreDumps.h"
#include "platform/Secrets.h"
#include "sharing/SharingLog.h"

#include <QSettings>

namespace velmora
{

QString TokenStore::load(const QString &key)
{
    const QByteArray stored = m_settings.value(key).toString().toLatin1();
    if (stored.isEmpty())
        return {};
    keepMemoryOutOfCoreDumps();
    const QByteArray sealed = QByteArray::fromHex(stored);
    // Damaged text: the decoder skips what is no digit.
    if (sealed.toHex() == stored) {
        if (const auto token = m_secrets.unprotect(sealed))
            return QString::fromUtf8(*token);
    }
    logFailure(key);
    return {};
}

void TokenStore::save(const QString &key, const QString &token)
{
    keepMemoryOutOfCoreDumps();
    const auto sealed = m_secrets.protect(token.toUtf8());
    if (!sealed) {
        logFailure(key);
        return;
    }
    m_settings.setValue(key, QString::fromLatin1(sealed->toHex()));
    m_settings.sync();
    if (m_settings.status() != QSettings::NoError)
        qCWarning(lcSharing) << "Cannot store the token of" << key;
}

void TokenStore::logFailure(const QString &key) const
{
    qCWarning(lcSharing).noquote()
        << QStringLiteral("Failed to crypt token for, error %1").arg(m_secrets.lastError()) << key;
}

} // namespace velmora
