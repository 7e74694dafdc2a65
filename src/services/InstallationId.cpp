// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/InstallationId.h"

#include <QSettings>
#include <QUuid>

namespace velmora
{

QString installationId(QSettings &store)
{
    const QString key = QStringLiteral("installation_id");
    const QUuid stored = QUuid::fromString(store.value(key).toString());
    const QUuid id = stored.isNull() ? QUuid::createUuid() : stored;
    if (stored.isNull())
        store.setValue(key, id.toString(QUuid::WithoutBraces));
    return id.toString(QUuid::WithoutBraces);
}

} // namespace velmora
