// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/documents/AudioItemList.h"

#include <QSize>
#include <QString>

namespace velmora
{

struct AppSettings;
class ProjectFile;

/// Everything that can be edited in a project besides its slides. Plain value.
struct ProjectState {
    QString name;
    QString format;
    QSize resolution;
    bool origRatio = false;
    bool scaleToFit = false;
    AudioItemList audio;
    bool audioLoop = false;
    int audioFade = 0;         ///< s
    int transitionSeconds = 0; ///< s; kept in the settings

    static ProjectState of(const ProjectFile &project, const AppSettings &settings);
    /// Sets what differs from @p before; everything else stays, as others may have changed it.
    void applyTo(ProjectFile &project, AppSettings &settings, const ProjectState &before) const;

    bool hasSameSettings(const ProjectState &other) const;
    bool hasSameAudio(const ProjectState &other) const;
};

} // namespace velmora
