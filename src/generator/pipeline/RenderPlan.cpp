// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/RenderPlan.h"

#include "generator/transitions/Fade.h"
#include "project/documents/ProjectFile.h"
#include "project/slides/ProjectItemSimple.h"

namespace velmora
{

namespace
{

// In processor time, so that painting ahead of the encoder is not taken for more than it is;
// measured in both profiles at 640x360 and at 1920x1080.
constexpr int kStillPicture = 80; // Reading and fitting a photo.
constexpr int kFadePicture = 2;
constexpr int kOtherPicture = 4;
constexpr int kEncoderStart = 60; // With its share of joining the segments.
constexpr int kStillFrame = 4;
constexpr int kFadeFrame = 18;
constexpr int kMovingFrame = 24;

/// A title slide further on in the video has no transition of its own.
int storedTransition(const ProjectItem &item)
{
    const auto *photo = qobject_cast<const ProjectItemSimple *>(&item);
    return photo ? photo->transition() : static_cast<int>(TransitionType::CrossFade);
}

TransitionType resolve(int stored, TransitionType previous, const RenderPlan::Random &random)
{
    const TransitionType type = transitionFromInt(stored);
    if (type != TransitionType::Random)
        return type;
    constexpr int kinds = kLastRandomTransition - kFirstRandomTransition + 1;
    TransitionType drawn = previous;
    while (drawn == previous || drawn == TransitionType::Random)
        drawn = transitionFromInt(random() % kinds + kFirstRandomTransition);
    return drawn;
}

} // namespace

bool PlannedStage::isFade() const
{
    return fadeAt(effect, {1, stage.frameCount}).has_value();
}

qint64 PlannedStage::paintingWork() const
{
    if (pictures == 1)
        return kStillPicture;
    return isFade() ? kFadePicture : kOtherPicture;
}

qint64 PlannedStage::encodingWork() const
{
    const int frame = pictures == 1 ? kStillFrame : isFade() ? kFadeFrame : kMovingFrame;
    return kEncoderStart + stage.frameCount * frame;
}

QString PlannedStage::prefix() const
{
    return QStringLiteral("_%1%2").arg(QLatin1Char(stage.prefix())).arg(stage.slide);
}

QString PlannedStage::paintText() const
{
    switch (stage.kind) {
    case Timeline::StageKind::Picture:
        return QStringLiteral("Generation transition");
    case Timeline::StageKind::Caption:
        return QStringLiteral("Generation text transition");
    case Timeline::StageKind::Still:
        break;
    }
    return QStringLiteral("Generation slide frame");
}

QString PlannedStage::encodeText() const
{
    switch (stage.kind) {
    case Timeline::StageKind::Picture:
        return QStringLiteral("Creating video of transition");
    case Timeline::StageKind::Caption:
        return QStringLiteral("Creating video of text transition");
    case Timeline::StageKind::Still:
        break;
    }
    return QStringLiteral("Creating video of slide");
}

int PlannedSlide::pictures() const
{
    int sum = 0;
    for (const PlannedStage &stage : stages)
        sum += stage.pictures;
    return sum;
}

qint64 PlannedSlide::frames() const
{
    qint64 sum = 0;
    for (const PlannedStage &stage : stages)
        sum += stage.stage.frameCount;
    return sum;
}

RenderPlan RenderPlan::make(const ProjectFile &project, const Timeline &timeline,
                            const Random &random)
{
    RenderPlan plan;
    plan.m_totalLength = timeline.totalLength();
    plan.m_totalFrames = timeline.totalFrames();
    TransitionType captionEffect = TransitionType::None;
    for (const Timeline::Stage &stage : timeline.stages()) {
        if (plan.m_slides.isEmpty() || plan.m_slides.constLast().index != stage.slide) {
            PlannedSlide slide;
            slide.index = stage.slide;
            slide.item = project.items().at(stage.slide);
            slide.sourceType = storedTransition(*slide.item);
            if (!plan.m_slides.isEmpty())
                slide.previousType = plan.m_slides.constLast().type;
            plan.m_slides.append(slide);
        }
        PlannedSlide &slide = plan.m_slides.last();
        PlannedStage planned;
        planned.stage = stage;
        if (stage.kind == Timeline::StageKind::Picture) {
            slide.type = resolve(slide.sourceType, slide.previousType, random);
            planned.effect = slide.type;
        } else if (stage.kind == Timeline::StageKind::Caption) {
            captionEffect = resolve(slide.item->caption().effect, captionEffect, random);
            planned.effect = captionEffect;
            slide.captionAppears = true;
        }
        if (planned.effect != TransitionType::None)
            planned.pictures = stage.frameCount;
        slide.stages.append(planned);
    }
    return plan;
}

qint64 RenderPlan::totalWork() const
{
    qint64 sum = 0;
    for (const PlannedSlide &slide : m_slides) {
        for (const PlannedStage &stage : slide.stages)
            sum += stage.pictures * stage.paintingWork() + stage.encodingWork();
    }
    return sum;
}

} // namespace velmora
