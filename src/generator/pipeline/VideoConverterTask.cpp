// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/VideoConverterTask.h"

#include "generator/GeneratorLog.h"
#include "generator/pipeline/FrameProducer.h"

#include <QElapsedTimer>
#include <QFile>

namespace velmora
{

GeneratorThread::VideoConverterTask::VideoConverterTask(GeneratorThread &generator, int order,
                                                        FrameProducer &producer)
    : m_generator(generator), m_order(order), m_slide(generator.m_plan.slides().at(order)),
      m_producer(producer)
{
}

void GeneratorThread::VideoConverterTask::run()
{
    m_generator.waitWhilePaused();
    if (m_generator.m_context.cancelled)
        return;
    QElapsedTimer elapsed;
    elapsed.start();
    logType();
    VideoUtil util(m_generator.m_context);
    if (encodeStages(util) && joinStages(util))
        qCInfo(generatorLog).noquote()
            << QStringLiteral("[OPERATION TIME:'%1']").arg(elapsed.elapsed());
}

void GeneratorThread::VideoConverterTask::logType() const
{
    qCInfo(generatorLog).nospace().noquote()
        << "Final type=" << static_cast<int>(m_slide.type)
        << ", prev type=" << static_cast<int>(m_slide.previousType)
        << ", src type: " << m_slide.sourceType;
}

bool GeneratorThread::VideoConverterTask::encodeStages(VideoUtil &util)
{
    for (int stage = 0; stage < m_slide.stages.size(); ++stage) {
        if (!m_producer.waitForStage(m_order, stage) || !encodeStage(stage, util))
            return false;
        m_producer.stageEncoded(m_order, stage);
    }
    return true;
}

bool GeneratorThread::VideoConverterTask::encodeStage(int stage, VideoUtil &util)
{
    const PlannedStage &planned = m_slide.stages.at(stage);
    const qint64 length = planned.stage.length;
    const qint64 work = planned.encodingWork();
    qCInfo(generatorLog).noquote() << planned.encodeText();
    m_generator.enterStep(SegmentEncoding);
    m_generator.m_progress.beginRun(work, length);
    const bool done = util.encodeSegment(planned.prefix(), planned.pictures, length,
                                         segmentFile(planned.stage.prefix()),
                                         planned.isFade() ? Motion::None : Motion::Any);
    m_generator.m_progress.endRun(work);
    util.removeFrames(planned.prefix(), planned.pictures);
    if (!done) {
        m_generator.failWithTool(util);
        return false;
    }
    m_generator.reportProgress(0);
    return true;
}

bool GeneratorThread::VideoConverterTask::joinStages(VideoUtil &util)
{
    qCInfo(generatorLog) << "Merge slide video";
    QStringList segments;
    for (const PlannedStage &planned : m_slide.stages)
        segments.append(segmentFile(planned.stage.prefix()));
    // A list of its own: two slides may be joined at the same time.
    const QString list =
        m_generator.m_cache.file(QStringLiteral("merge-files-%1.txt").arg(m_slide.index));
    const bool done = segments.size() == 1 ? util.moveFile(segments.constFirst(), segmentFile('c'))
                                           : util.join(segments, list, segmentFile('c'));
    if (!done)
        m_generator.failWithTool(util);
    for (const QString &segment : qAsConst(segments))
        QFile::remove(segment);
    QFile::remove(list);
    return done;
}

QString GeneratorThread::VideoConverterTask::segmentFile(char kind) const
{
    return m_generator.videoFile(
        QStringLiteral("vid_%1%2").arg(QLatin1Char(kind)).arg(m_slide.index));
}

} // namespace velmora
