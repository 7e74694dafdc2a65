// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Identity.h"

#include <QCoreApplication>

namespace velmora
{

QString programVersion()
{
    return QStringLiteral(VELMORA_VERSION);
}

void applyIdentity()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Corvel"));
    QCoreApplication::setApplicationName(QStringLiteral("Corvel Velmora"));
    QCoreApplication::setApplicationVersion(programVersion());
}

} // namespace velmora
