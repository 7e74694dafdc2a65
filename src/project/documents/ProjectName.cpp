// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/documents/ProjectName.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QRegularExpression>

namespace velmora
{

bool ProjectName::isAllowed(const QString &name)
{
    static const QRegularExpression forbidden(QStringLiteral(R"([\*:\[\]{}\\\/]+)"));
    return !forbidden.match(name).hasMatch();
}

QString ProjectName::proposal(const QDateTime &time)
{
    return time.toString(QStringLiteral("'sshow_'yyyy-MM-dd_HHmmss"));
}

bool ProjectName::isProposal(const QString &name)
{
    static const QRegularExpression pattern(QStringLiteral(R"(\Asshow_\d{4}-\d{2}-\d{2}_\d{6}\z)"));
    return pattern.match(name).hasMatch();
}

QString ProjectName::forbiddenMessage()
{
    return QCoreApplication::translate(
        "ProjectName", "Project name should not contain any of these symbols: *:[]{}\\/!");
}

} // namespace velmora
