// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/pipeline/GeneratorThread.h"

#include <QRunnable>

namespace velmora
{

/// Makes the segment of one slide, "vid_cN": a segment of each stage, and their join. Runs on the
/// generator's pool, or on the generator thread itself. Failures go to the generator.
class GeneratorThread::VideoConverterTask : public QRunnable
{
public:
    /// @p order is the slide's place in the plan; its frames come from @p producer.
    VideoConverterTask(GeneratorThread &generator, int order, FrameProducer &producer);

    void run() override;

private:
    void logType() const;
    bool encodeStages(VideoUtil &util);
    bool encodeStage(int stage, VideoUtil &util);
    bool joinStages(VideoUtil &util);
    QString segmentFile(char kind) const;

    GeneratorThread &m_generator;
    const int m_order;
    const PlannedSlide &m_slide;
    FrameProducer &m_producer;
};

} // namespace velmora
