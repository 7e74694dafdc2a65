// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/model/SlideState.h"

#include "project/slides/ProjectItemFirst.h"
#include "project/slides/ProjectItemSimple.h"

namespace velmora
{

SlideState SlideState::of(const ProjectItem &slide)
{
    SlideState state;
    state.caption = slide.caption();
    state.time = slide.time();
    state.angle = slide.angle();
    if (const auto *photo = qobject_cast<const ProjectItemSimple *>(&slide)) {
        state.fileName = photo->fileName();
        state.transition = photo->transition();
    } else if (const auto *title = qobject_cast<const ProjectItemFirst *>(&slide)) {
        state.backgroundIndex = title->backgroundIndex();
        state.visible = title->isShown();
    }
    return state;
}

void SlideState::applyTo(ProjectItem &slide) const
{
    slide.setCaption(caption);
    slide.setTime(time);
    slide.setAngle(angle);
    if (auto *photo = qobject_cast<ProjectItemSimple *>(&slide)) {
        photo->setFileName(fileName);
        photo->setTransition(transition);
    } else if (auto *title = qobject_cast<ProjectItemFirst *>(&slide)) {
        title->setBackgroundIndex(backgroundIndex);
        title->setVisible(visible);
    }
}

} // namespace velmora
