// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/sound/SoundFormat.h"

#include "generator/media/MediaFileInfo.h"

#include <algorithm>

namespace velmora
{

namespace
{

bool isPlainWav(const SoundFormat &format)
{
    return format.container == QLatin1String("wav") &&
           format.codec.startsWith(QLatin1String("pcm_"));
}

/// What every sound codec of the videos takes.
bool isUsual(const SoundFormat &format)
{
    return format.channels <= 2 && format.sampleRate >= 8000 && format.sampleRate <= 48000;
}

} // namespace

SoundFormat SoundFormat::of(const MediaFileInfo &info)
{
    return {info.containerName(), info.audioCodecName(), info.audioSampleRate(),
            info.audioChannels()};
}

bool SoundFormat::isNormal() const
{
    return *this == SoundFormat{QStringLiteral("wav"), QStringLiteral("pcm_s16le"), 44100, 2};
}

bool canJoinAsTheyAre(const QVector<SoundFormat> &formats)
{
    return std::all_of(formats.cbegin(), formats.cend(), [&](const SoundFormat &format) {
        return format == formats.first() && isPlainWav(format) && isUsual(format);
    });
}

} // namespace velmora
