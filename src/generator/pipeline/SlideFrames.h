// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/pipeline/RenderPlan.h"
#include "project/frames/FrameFitter.h"

#include <QImage>
#include <QMutex>

#include <memory>

namespace velmora
{

/// The fitted pictures of the slides, each made once and shared by all stages that show it: the
/// slide's own ones and the transition into the next slide. A picture is dropped as soon as both
/// users are done, so that only a few slides are in memory at a time. Thread-safe; a thread that
/// asks for a picture in the making waits for it. Slides are given by their order in the plan.
class SlideFrames
{
public:
    SlideFrames(const RenderPlan &plan, const FrameFormat &format);

    /// The slide without its caption; null with the reason in @p error when its photo is
    /// unreadable. Not to be asked for after paintingDone().
    QImage bare(int order, QString *error);
    /// The slide with its caption; the same picture when it has none.
    QImage captioned(int order, QString *error);

    /// All frames of the slide's own stages are painted.
    void paintingDone(int order);

private:
    struct Entry {
        QMutex mutex;
        QImage bare;
        QImage captioned;
        QString error;
        int users = 2; ///< The slide itself and the transition into the next one.
    };
    void makeBare(Entry &entry, int order);
    void release(Entry &entry);

    const RenderPlan &m_plan;
    const FrameFormat m_format;
    QMutex m_decoding; ///< Only one photo is decoded at a time: large ones need much memory.
    std::unique_ptr<Entry[]> m_entries;
};

} // namespace velmora
