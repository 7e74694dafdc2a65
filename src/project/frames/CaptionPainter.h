// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/slides/CaptionStyle.h"

#include <QImage>
#include <QRect>

namespace velmora
{

/// The painted caption: a picture of its box, and where that box lies on the frame.
struct PaintedCaption {
    QImage picture;
    QRect box; ///< px on the frame; empty when there is nothing to paint.
};

/// Paints @p caption onto @p frame in place and returns the frame cut to the caption's box. Every
/// size follows the frame's width, so that layouts agree at any output size. Any thread.
PaintedCaption paintCaption(QImage &frame, const CaptionStyle &caption);

} // namespace velmora
