// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/sound/TranscoderLocator.h"

#include <QCoreApplication>
#include <QStandardPaths>

namespace velmora
{

QString locateTranscoder()
{
    const QString named = qEnvironmentVariable("VELMORA_TRANSCODER");
    if (!named.isEmpty())
        return QStandardPaths::findExecutable(named);
    return QStandardPaths::findExecutable(QStringLiteral("transcoder"),
                                          {QCoreApplication::applicationDirPath()});
}

} // namespace velmora
