// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/media/MediaFileInfoPrivate.h"

#include "generator/media/MediaLog.h"

extern "C" {
#include <libavformat/avformat.h>
}

namespace velmora
{

MediaFileInfoPrivate::MediaFileInfoPrivate(const QString &source) : path(source)
{
    load();
}

void MediaFileInfoPrivate::load()
{
    if (!input.open(path))
        errorText = input.errorText();
    else if (!isValid())
        errorText = tr("There is neither sound nor video in it.");
}

bool MediaFileInfoPrivate::isValid() const
{
    return input.audioStream() != nullptr || input.videoStream() != nullptr;
}

qint64 MediaFileInfoPrivate::duration() const
{
    const AVStream *stream = input.audioStream();
    if (stream == nullptr)
        stream = input.videoStream();
    qint64 duration = 0;
    if (stream != nullptr && stream->duration != AV_NOPTS_VALUE && stream->duration > 0)
        duration = av_rescale_q(stream->duration, stream->time_base, AVRational{1, 1000});
    else if (stream != nullptr && input.context()->duration != AV_NOPTS_VALUE)
        duration = av_rescale(input.context()->duration, 1000, AV_TIME_BASE);
    duration = qMax<qint64>(duration, 0);
    qCDebug(mediaLog) << "DURATION:" << duration;
    return duration;
}

} // namespace velmora
