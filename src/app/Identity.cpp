// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Identity.h"

#include <QCoreApplication>

namespace velmora
{

QString programVersion()
{
    return QStringLiteral(VELMORA_VERSION);
}

QString buildLabel()
{
    return QStringLiteral(VELMORA_BUILD);
}

void applyIdentity()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Corvel"));
    QCoreApplication::setApplicationName(QStringLiteral("Corvel Velmora"));
    QCoreApplication::setApplicationVersion(programVersion());
}

} // namespace velmora
