// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/LocalServerName.h"

#include <QCryptographicHash>
#include <QStandardPaths>

namespace velmora
{

QString localServerName(const QString &folder)
{
    // A socket's path may have 107 characters only, so the folder goes in as a digest.
    const QByteArray digest = QCryptographicHash::hash(folder.toUtf8(), QCryptographicHash::Sha1);
    const QString name = QStringLiteral("velmora-") + QString::fromLatin1(digest.toHex().left(16));
    // The runtime folder belongs to this user alone, unlike the temporary folder.
    const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return runtime.isEmpty() ? name : runtime + QLatin1Char('/') + name;
}

} // namespace velmora
