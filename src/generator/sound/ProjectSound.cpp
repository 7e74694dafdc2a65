// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/sound/ProjectSound.h"

#include "generator/encoding/VideoUtil.h"
#include "project/documents/ProjectFile.h"

#include <QDir>

#include <limits>

namespace velmora
{

ProjectSound ProjectSound::of(const ProjectFile &project)
{
    return {project.audio(), project.audioFade(), project.audioLoop()};
}

QString ProjectSound::prepare(VideoUtil &util, const QString &folder, qint64 length) const
{
    QDir().mkpath(folder);
    const int limited = static_cast<int>(qMin<qint64>(length, std::numeric_limits<int>::max()));
    const QString prepared = util.prepareAudio(list, folder, list.offset, fade, limited);
    if (prepared.isEmpty() || !loop)
        return prepared;
    QString looped = util.cachePath() + QStringLiteral("/video/audio_stream_looped.wav");
    return util.prepareAudioLoop(prepared, limited, looped, fade) ? looped : QString();
}

} // namespace velmora
