// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/AppSettings.h"
#include "generator/pipeline/RenderError.h"
#include "generator/pipeline/RenderRequest.h"
#include "programs/velmoratool/MakeOptions.h"

namespace velmora
{

/// Builds the render request that a command line asks for. Has to outlive the request, whose
/// project refers to the settings.
class MakeProject
{
public:
    /// @p settings fill in what @p options leave open.
    MakeProject(const MakeOptions &options, const AppSettings &settings);

    /// Looks at the named files and folders, or reads the saved project.
    RenderError build();
    /// The result of a successful build(), once.
    RenderRequest takeRequest() { return std::move(m_request); }

    const AppSettings &settings() const { return m_settings; }

private:
    RenderError loadProject();
    RenderError createProject();
    void addSlides(const QStringList &photos);
    void addMusic(const QStringList &files);
    void applyOutput();

    MakeOptions m_options;
    AppSettings m_settings;
    RenderRequest m_request;
};

/// The caption for a photo: its file's name without suffix, underscores read as blanks.
QString captionFromName(const QString &path);

} // namespace velmora
