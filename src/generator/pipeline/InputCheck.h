// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/pipeline/RenderError.h"

#include <atomic>

namespace velmora
{

class ProjectFile;

/// Looks at every file that a render will read, before its first frame.
namespace InputCheck
{

/// Names every unreadable photo of the shown slides and every unreadable sound file with its
/// reason, one per line, in one error. Files are checked two at a time; returns early, without an
/// error, once @p cancelled is set. Blocks, so not on the GUI thread.
RenderError run(const ProjectFile &project, const std::atomic_bool &cancelled);

/// Refuses a video, by its absolute path, that would take the place of a photo or sound file of its
/// own. Links are followed. Reads folders, so not on the GUI thread.
RenderError refuseReplacing(const ProjectFile &project, const QString &video);

} // namespace InputCheck

} // namespace velmora
