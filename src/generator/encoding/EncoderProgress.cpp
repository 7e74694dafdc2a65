// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/encoding/EncoderProgress.h"

#include "generator/GeneratorLog.h"

#include <QRegExp>
#include <QTime>

namespace velmora
{

int EncoderProgress::seconds(const QString &output)
{
    QRegExp pattern(QStringLiteral("time=(\\d\\d:\\d\\d:\\d\\d).\\d\\d"));
    if (pattern.lastIndexIn(output) < 0) {
        qCDebug(generatorLog) << "Failed to parse time from ffmpeg";
        return -1;
    }
    const QTime time = QTime::fromString(pattern.cap(1), QStringLiteral("hh:mm:ss"));
    if (!time.isValid()) {
        qCDebug(generatorLog) << "Failed to parse time from ffmpeg";
        return -1;
    }
    qCDebug(generatorLog) << "Found timeout from ffmpeg: " << time;
    return QTime(0, 0).secsTo(time);
}

} // namespace velmora
