// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/documents/ProjectName.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace velmora
{

bool ProjectName::isAllowed(const QString &name)
{
    static const QRegularExpression forbidden(QStringLiteral(R"([\*:\[\]{}\\\/]+)"));
    return !forbidden.match(name).hasMatch();
}

QString ProjectName::forbiddenMessage()
{
    return QCoreApplication::translate(
        "ProjectName", "Project name should not contain any of these symbols: *:[]{}\\/!");
}

} // namespace velmora
