// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/PrepareAudioThread.h"

#include "generator/sound/ProjectSound.h"

#include <QFileInfo>

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
    const QString track = ProjectSound::of(m_generator.m_project)
                              .prepare(util, m_generator.m_cache.file(QStringLiteral("audio")),
                                       m_generator.m_plan.totalLength());
    if (QFileInfo(track).size() > 0)
        m_track = track;
    else
        m_generator.failWithTool(util);
}

} // namespace velmora
