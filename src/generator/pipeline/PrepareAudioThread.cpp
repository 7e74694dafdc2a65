// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/PrepareAudioThread.h"

#include "project/documents/ProjectFile.h"

#include <QDir>
#include <QFileInfo>

#include <limits>

namespace velmora
{

GeneratorThread::PrepareAudioThread::PrepareAudioThread(GeneratorThread &generator)
    : m_generator(generator)
{
}

GeneratorThread::PrepareAudioThread::~PrepareAudioThread()
{
    wait();
}

void GeneratorThread::PrepareAudioThread::run()
{
    VideoUtil util(m_generator.m_context);
    const QString track = prepare(util);
    if (QFileInfo(track).size() > 0)
        m_track = track;
    else
        m_generator.failWithTool(util);
}

QString GeneratorThread::PrepareAudioThread::prepare(VideoUtil &util) const
{
    const ProjectFile &project = m_generator.m_project;
    const QString folder = m_generator.m_cache.file(QStringLiteral("audio"));
    QDir().mkpath(folder);
    const int length = static_cast<int>(
        qMin<qint64>(m_generator.m_plan.totalLength(), std::numeric_limits<int>::max()));
    const QString prepared = util.prepareAudio(project.audio(), folder, project.audio().offset,
                                               project.audioFade(), length);
    if (prepared.isEmpty() || !project.audioLoop())
        return prepared;
    QString looped = m_generator.m_cache.file(QStringLiteral("video/audio_stream_looped.wav"));
    return util.prepareAudioLoop(prepared, length, looped, project.audioFade()) ? looped
                                                                                : QString();
}

} // namespace velmora
