// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preview/PreviewScript.h"

#include "app/AppSettings.h"
#include "generator/encoding/EncoderOptions.h"
#include "project/documents/ProjectFile.h"

#include <QJsonObject>

#include <algorithm>
#include <cstdlib>

namespace velmora
{

namespace
{

constexpr qint64 kLongestRest = 1000; // ms, of the slide after its transition

int indexOf(const QVector<ProjectItem *> &items, const ProjectItem &slide)
{
    const auto found = std::find(items.cbegin(), items.cend(), &slide);
    return found == items.cend() ? -1 : static_cast<int>(found - items.cbegin());
}

} // namespace

/// The slides as they were when the script was made.
struct PreviewScript::Copy {
    explicit Copy(const AppSettings &appSettings)
        : settings(appSettings), project(settings, ProjectFile::TitleSlide::Omit)
    {
    }
    /// From now on belongs to no thread, so that whoever drops the last pointer may delete it.
    void detach() { project.moveToThread(nullptr); }

    const AppSettings settings;
    ProjectFile project;
};

PreviewScript::PreviewScript(const ProjectFile &project, const AppSettings &settings,
                             const QSize &size)
    : m_copy(std::make_shared<Copy>(settings)),
      m_videoSize(EncoderOptions::evenSize(project.resolution()))
{
    m_format = {size, project.origRatio(), project.scaleToFit()};
}

void PreviewScript::copySlide(const ProjectItem &slide)
{
    QJsonObject document;
    slide.toJson(document);
    if (ProjectItem *copy = ProjectItem::fromJson(document, nullptr))
        m_copy->project.insertItem(-1, copy);
}

RenderPlan PreviewScript::makePlan() const
{
    const ProjectFile &project = m_copy->project;
    const Timeline timeline = Timeline::ofProject(project, m_copy->settings.transitionTime);
    return RenderPlan::make(project, timeline, std::rand);
}

PreviewScript::Pointer PreviewScript::slideshow(const ProjectFile &project,
                                                const AppSettings &settings, const QSize &size)
{
    std::shared_ptr<PreviewScript> script(new PreviewScript(project, settings, size));
    for (const ProjectItem *slide : project.items())
        script->copySlide(*slide);
    script->m_copy->detach();
    const RenderPlan plan = script->makePlan();
    if (plan.slides().isEmpty())
        return nullptr;
    script->m_slides = plan.slides();
    script->m_total = static_cast<double>(plan.totalLength());
    return script;
}

PreviewScript::Pointer PreviewScript::transition(const ProjectFile &project,
                                                 const ProjectItem &slide,
                                                 const AppSettings &settings, const QSize &size)
{
    const int index = indexOf(project.items(), slide);
    if (index < 0 || !slide.isShown())
        return nullptr;
    int before = index - 1;
    while (before >= 0 && !project.items().at(before)->isShown())
        --before;
    std::shared_ptr<PreviewScript> script(new PreviewScript(project, settings, size));
    if (before >= 0)
        script->copySlide(*project.items().at(before));
    script->copySlide(slide);
    script->m_copy->detach();
    const RenderPlan plan = script->makePlan();
    script->m_slides = {plan.slides().constLast()};
    if (before >= 0)
        script->m_before = plan.slides().constFirst().item;
    PlannedStage &rest = script->m_slides.first().stages.last();
    rest.stage.length = std::min(rest.stage.length, kLongestRest);
    script->shiftToZero();
    const Timeline whole = Timeline::ofProject(project, settings.transitionTime);
    const auto first =
        std::find_if(whole.stages().begin(), whole.stages().end(),
                     [index](const Timeline::Stage &stage) { return stage.slide == index; });
    script->m_offset = static_cast<double>(first->start);
    return script;
}

PreviewScript::Pointer PreviewScript::still(const ProjectFile &project, const ProjectItem &slide,
                                            const AppSettings &settings, const QSize &size)
{
    std::shared_ptr<PreviewScript> script(new PreviewScript(project, settings, size));
    script->copySlide(slide);
    script->m_copy->detach();
    PlannedSlide planned;
    planned.item = script->m_copy->project.items().constFirst();
    PlannedStage stage;
    stage.stage = {Timeline::StageKind::Still, 0, -1, 0, kLongestRest, 1};
    planned.stages.append(stage);
    script->m_slides.append(planned);
    script->m_total = static_cast<double>(kLongestRest);
    return script;
}

PreviewScript::Pointer PreviewScript::withSize(const QSize &size) const
{
    auto script = std::make_shared<PreviewScript>(*this);
    script->m_format.size = size;
    return script;
}

void PreviewScript::shiftToZero()
{
    qint64 start = 0;
    for (PlannedSlide &slide : m_slides) {
        for (PlannedStage &stage : slide.stages) {
            stage.stage.start = start;
            start += stage.stage.length;
        }
    }
    m_total = static_cast<double>(start);
}

int PreviewScript::stageOf(int slide, int *frame) const
{
    const QVector<PlannedStage> &stages = m_slides.at(slide).stages;
    int stage = 0;
    while (*frame >= stages.at(stage).pictures)
        *frame -= stages.at(stage++).pictures;
    return stage;
}

PreviewScript::FrameTime PreviewScript::frameTime(int slide, int frame) const
{
    const PlannedStage &stage = m_slides.at(slide).stages.at(stageOf(slide, &frame));
    const double duration = static_cast<double>(stage.stage.length) / stage.pictures;
    return {static_cast<double>(stage.stage.start) + frame * duration, duration};
}

QPair<int, int> PreviewScript::frameAt(double position) const
{
    int slide = 0;
    while (slide + 1 < m_slides.size() && position >= frameTime(slide + 1, 0).start)
        ++slide;
    const int count = frameCount(slide);
    int frame = 0;
    while (frame + 1 < count && position >= frameTime(slide, frame + 1).start)
        ++frame;
    return {slide, frame};
}

PreviewScript::Recipe PreviewScript::recipe(int slide, int frame) const
{
    const PlannedSlide &planned = m_slides.at(slide);
    const PlannedStage &stage = planned.stages.at(stageOf(slide, &frame));
    Recipe recipe;
    recipe.effect = stage.effect;
    recipe.frame = frame;
    recipe.count = stage.pictures;
    recipe.to = planned.item;
    recipe.toCaptioned =
        stage.stage.kind != Timeline::StageKind::Picture || !planned.captionAppears;
    if (stage.effect == TransitionType::None)
        return recipe;
    const bool caption = stage.stage.kind == Timeline::StageKind::Caption;
    const ProjectItem *before = slide > 0 ? m_slides.at(slide - 1).item : m_before;
    recipe.from = caption ? planned.item : before;
    recipe.fromCaptioned = !caption;
    return recipe;
}

} // namespace velmora
