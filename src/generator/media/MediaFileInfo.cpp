// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/media/MediaFileInfo.h"

#include "generator/media/AvSupport.h"
#include "generator/media/MediaFileInfoPrivate.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

namespace velmora
{

MediaFileInfo::MediaFileInfo(const QString &path) : d(std::make_unique<MediaFileInfoPrivate>(path))
{
}

MediaFileInfo::~MediaFileInfo() = default;

bool MediaFileInfo::isValid() const
{
    return d->isValid();
}

QString MediaFileInfo::errorText() const
{
    return d->errorText;
}

qint64 MediaFileInfo::duration() const
{
    return d->duration();
}

bool MediaFileInfo::hasAudio() const
{
    return d->input.audioStream() != nullptr;
}

bool MediaFileInfo::hasVideo() const
{
    return d->input.videoStream() != nullptr;
}

int MediaFileInfo::audioChannels() const
{
    const AVStream *stream = d->input.audioStream();
    return stream == nullptr ? 0 : AvSupport::channelCount(*stream->codecpar);
}

int MediaFileInfo::audioSampleRate() const
{
    const AVStream *stream = d->input.audioStream();
    return stream == nullptr ? 0 : stream->codecpar->sample_rate;
}

QString MediaFileInfo::audioChannelLayout() const
{
    const AVStream *stream = d->input.audioStream();
    return stream == nullptr ? QString() : AvSupport::channelLayout(*stream->codecpar);
}

QString MediaFileInfo::audioCodecName() const
{
    const AVStream *stream = d->input.audioStream();
    return stream == nullptr ? QString()
                             : QString::fromUtf8(avcodec_get_name(stream->codecpar->codec_id));
}

QString MediaFileInfo::audioCodecLongName() const
{
    const AVStream *stream = d->input.audioStream();
    const AVCodecDescriptor *descriptor =
        stream == nullptr ? nullptr : avcodec_descriptor_get(stream->codecpar->codec_id);
    return descriptor == nullptr ? QString() : QString::fromUtf8(descriptor->long_name);
}

QString MediaFileInfo::containerName() const
{
    return d->input.context() == nullptr ? QString()
                                         : QString::fromUtf8(d->input.context()->iformat->name);
}

} // namespace velmora
