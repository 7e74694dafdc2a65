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

void ProjectState::applyTo(ProjectFile &project, AppSettings &settings) const
{
    project.setName(name);
    project.setFormat(format);
    project.setResolution(resolution);
    project.setOrigRatio(origRatio);
    project.setScaleToFit(scaleToFit);
    project.setAudio(audio);
    project.setAudioLoop(audioLoop);
    project.setAudioFade(audioFade);
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
