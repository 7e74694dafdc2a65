// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/StartMessage.h"

#include <QFileInfo>
#include <QUrl>

namespace velmora
{

namespace
{

const QLatin1String kWakeUp("Wake up!");

} // namespace

QString StartMessage::compose(const QStringList &files)
{
    QStringList lines = {kWakeUp};
    for (const QString &file : files)
        lines.append(QUrl::fromLocalFile(file).toString(QUrl::FullyEncoded));
    return lines.join(QLatin1Char('\n'));
}

QStringList StartMessage::files(const QString &message)
{
    QStringList lines = message.split(QLatin1Char('\n'));
    if (lines.takeFirst() != kWakeUp)
        return {};
    QStringList paths;
    for (const QString &line : qAsConst(lines)) {
        const QUrl address(line, QUrl::StrictMode);
        if (address.isLocalFile() && !address.path().isEmpty())
            paths.append(address.toLocalFile());
    }
    return paths;
}

QStringList StartMessage::filesOfArguments(const QStringList &arguments)
{
    QStringList paths;
    for (const QString &argument : arguments.mid(1)) {
        if (!argument.isEmpty() && !argument.startsWith(QLatin1Char('-')))
            paths.append(QFileInfo(argument).absoluteFilePath());
    }
    return paths;
}

} // namespace velmora
