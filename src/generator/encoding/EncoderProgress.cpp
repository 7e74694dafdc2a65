// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/encoding/EncoderProgress.h"

#include "generator/GeneratorLog.h"

#include <QRegExp>
#include <QTime>

namespace velmora
{

int EncoderProgress::seconds(const QString &output)
{
    if (!output.contains(QLatin1String("time=")))
        return -1;
    QRegExp pattern(QStringLiteral("time=(\\d\\d:\\d\\d:\\d\\d).\\d\\d"));
    pattern.lastIndexIn(output);
    const QTime time = QTime::fromString(pattern.cap(1), QStringLiteral("hh:mm:ss"));
    if (!time.isValid()) {
        qCDebug(generatorLog) << "Failed to parse time from ffmpeg";
        return -1;
    }
    qCDebug(generatorLog) << "Found timeout from ffmpeg: " << time;
    return QTime(0, 0).secsTo(time);
}

} // namespace velmora
