// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/frames/FrameFitter.h"

#include <QImage>
#include <QString>

namespace velmora
{

class ProjectItem;

/// Makes the pictures of slides at one frame format; used by the render, the preview and the
/// editor alike. Frames are Format_RGB32 of exactly format.size. Stateless and thread-safe as
/// long as nobody changes the slide meanwhile.
namespace SlideRenderer
{

/// The slide turned and fitted, without its caption; null with the reason in @p error when its
/// photo cannot be read.
QImage bareFrame(const ProjectItem &item, const FrameFormat &format, QString *error = nullptr);

/// @p bare with the slide's caption; the same picture when the slide has none.
QImage captionedFrame(const QImage &bare, const ProjectItem &item);

} // namespace SlideRenderer

} // namespace velmora
