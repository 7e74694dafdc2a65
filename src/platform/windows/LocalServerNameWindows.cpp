// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/LocalServerName.h"

#include <QCryptographicHash>

namespace velmora
{

QString localServerName(const QString &folder)
{
    // The folder lies in the user's profile, so the digest differs between users.
    const QByteArray digest = QCryptographicHash::hash(folder.toUtf8(), QCryptographicHash::Sha1);
    return QStringLiteral("velmora-") + QString::fromLatin1(digest.toHex().left(16));
}

} // namespace velmora
