// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/encoding/EncoderOptions.h"
#include "project/documents/ProjectFile.h"

#include <memory>

namespace velmora
{

/// One render: the project, which names its output file, and how to make it.
struct RenderRequest {
    std::unique_ptr<ProjectFile> project;
    int transitionSeconds = 2; ///< "transition_time" of the document.
    bool parallel = false;     ///< Two slides at a time.
    OutputProfile profile = OutputProfile::OriginalQuality;

    /// Reads a request file (a project document); false with a plain reason in @p error. Parallel
    /// and profile come from @p settings where the file does not name them.
    bool load(const QString &path, const AppSettings &settings, QString *error);
    /// Writes a request file that renders @p project as @p settings say, whatever the worker's own
    /// settings are; false with a plain reason in @p error.
    static bool save(const ProjectFile &project, const AppSettings &settings, const QString &path,
                     QString *error);
};

} // namespace velmora
