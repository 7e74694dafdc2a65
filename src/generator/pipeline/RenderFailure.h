// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/pipeline/RenderError.h"

namespace velmora
{

class ProjectItem;
class VideoUtil;

/// Puts reasons of failures into whole sentences that name the file.
namespace RenderFailure
{

/// Of the last operation of @p util, which wrote into @p folder.
RenderError ofTool(const VideoUtil &util, const QString &folder);
/// Whether an encoder has failed, and the system's request to end this process, which need not have
/// been dealt with yet, accounts for it: a terminal sends Ctrl-C to both. Any thread.
bool comesOfTermination(const RenderError &error);
/// Of a slide's picture.
RenderError ofPhoto(const ProjectItem &item, const QString &reason);

/// @p reason continues the photo's name: "is not a picture that can be read".
QString photoText(const QString &path, const QString &reason);
/// @p reason is a sentence.
QString soundText(const QString &path, const QString &reason);

} // namespace RenderFailure

} // namespace velmora
