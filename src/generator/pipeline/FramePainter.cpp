// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/FramePainter.h"

#include "generator/pipeline/RenderFailure.h"
#include "generator/pipeline/SlideFrames.h"

namespace velmora
{

FramePainter::FramePainter(const RenderPlan &plan, SlideFrames &frames, EncodingContext &context)
    : m_plan(plan), m_frames(frames), m_context(context), m_util(context)
{
}

bool FramePainter::paint(int order, int stage, int number)
{
    const PlannedSlide &slide = m_plan.slides().at(order);
    const PlannedStage &planned = slide.stages.at(stage);
    const Timeline::StageKind kind = planned.stage.kind;
    const bool withCaption = kind != Timeline::StageKind::Picture || !slide.captionAppears;
    QImage to;
    if (!fetch(order, withCaption, &to))
        return false;
    bool saved = false;
    if (planned.effect == TransitionType::None) {
        saved = m_util.saveFrame(to, planned.prefix(), number);
    } else {
        QImage from;
        const bool caption = kind == Timeline::StageKind::Caption;
        if (!fetch(caption ? order : order - 1, !caption, &from))
            return false;
        saved = m_util.saveTransitionFrame(planned.effect, number, from, to, planned.prefix(),
                                           planned.pictures);
    }
    if (!saved)
        m_error = RenderFailure::ofTool(m_util, m_context.cachePath);
    return saved;
}

bool FramePainter::fetch(int order, bool withCaption, QImage *picture)
{
    QString reason;
    *picture = withCaption ? m_frames.captioned(order, &reason) : m_frames.bare(order, &reason);
    if (picture->isNull())
        m_error = RenderFailure::ofPhoto(*m_plan.slides().at(order).item, reason);
    return !picture->isNull();
}

} // namespace velmora
