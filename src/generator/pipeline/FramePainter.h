// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/encoding/VideoUtil.h"
#include "generator/pipeline/RenderError.h"
#include "generator/pipeline/RenderPlan.h"

namespace velmora
{

class SlideFrames;

/// Paints the frame files of stages into the cache. One object per thread; several may paint
/// frames of the same stage.
class FramePainter
{
public:
    FramePainter(const RenderPlan &plan, SlideFrames &frames, EncodingContext &context);

    /// Paints picture @p number (from 1) of the stage at index @p stage of the slide at @p order.
    bool paint(int order, int stage, int number);
    /// Why the last call failed.
    const RenderError &error() const { return m_error; }

private:
    bool fetch(int order, bool withCaption, QImage *picture);

    const RenderPlan &m_plan;
    SlideFrames &m_frames;
    const EncodingContext &m_context;
    VideoUtil m_util;
    RenderError m_error;
};

} // namespace velmora
