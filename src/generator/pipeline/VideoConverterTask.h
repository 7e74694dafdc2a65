// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/pipeline/GeneratorThread.h"

#include <QRunnable>

namespace velmora
{

/// Makes the segment of one slide, "vid_cN": frames, a segment of each stage, their join. Runs on
/// the generator's pool, or on the generator thread itself. Failures go to the generator.
class GeneratorThread::VideoConverterTask : public QRunnable
{
public:
    /// @p order is the slide's place in the plan. Frames come from @p producer where there is one,
    /// otherwise the task paints them itself.
    VideoConverterTask(GeneratorThread &generator, int order, FrameProducer *producer);

    void run() override;

private:
    void logType() const;
    bool paintFrames();
    bool encodeStages();
    bool encodeStage(int stage);
    bool joinStages();
    QString segmentFile(char kind) const;

    GeneratorThread &m_generator;
    const int m_order;
    const PlannedSlide &m_slide;
    FrameProducer *const m_producer;
    VideoUtil m_util;
};

} // namespace velmora
