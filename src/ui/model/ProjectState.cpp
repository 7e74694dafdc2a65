// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/model/ProjectState.h"

#include "app/AppSettings.h"
#include "project/documents/ProjectFile.h"

namespace velmora
{

ProjectState ProjectState::of(const ProjectFile &project, const AppSettings &settings)
{
    ProjectState state;
    state.name = project.name();
    state.format = project.format();
    state.resolution = project.resolution();
    state.origRatio = project.origRatio();
    state.scaleToFit = project.scaleToFit();
    state.audio = project.audio();
    state.audioLoop = project.audioLoop();
    state.audioFade = project.audioFade();
    state.transitionSeconds = settings.transitionTime;
    return state;
}

void ProjectState::applyTo(ProjectFile &project, AppSettings &settings,
                           const ProjectState &before) const
{
    if (name != before.name)
        project.setName(name);
    if (format != before.format)
        project.setFormat(format);
    if (resolution != before.resolution)
        project.setResolution(resolution);
    if (origRatio != before.origRatio)
        project.setOrigRatio(origRatio);
    if (scaleToFit != before.scaleToFit)
        project.setScaleToFit(scaleToFit);
    if (!hasSameAudio(before) || audio.offset != before.audio.offset)
        project.setAudio(audio);
    if (audioLoop != before.audioLoop)
        project.setAudioLoop(audioLoop);
    if (audioFade != before.audioFade)
        project.setAudioFade(audioFade);
    if (transitionSeconds != before.transitionSeconds)
        settings.transitionTime = transitionSeconds;
}

bool ProjectState::hasSameSettings(const ProjectState &other) const
{
    return name == other.name && format == other.format && resolution == other.resolution &&
           origRatio == other.origRatio && scaleToFit == other.scaleToFit &&
           audio.offset == other.audio.offset && audioLoop == other.audioLoop &&
           audioFade == other.audioFade && transitionSeconds == other.transitionSeconds;
}

bool ProjectState::hasSameAudio(const ProjectState &other) const
{
    return audio.items == other.audio.items;
}

} // namespace velmora
