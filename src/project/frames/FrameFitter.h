// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QRect>
#include <QSize>

namespace velmora
{

/// How slides are fitted into frames of one size.
struct FrameFormat {
    QSize size; ///< px
    bool origRatio = true;
    bool scaleToFit = true;
};

/// Where a photo of @p photo px goes in a frame: stretched to the frame without origRatio;
/// whole with bars, up or down, with both; centred, never enlarged, cut by the frame's edge with
/// origRatio alone.
QRect fittedRect(const QSize &photo, const FrameFormat &format);

/// Paints the photo, turned clockwise by @p angle degrees, into a black frame (RGB32).
QImage fitPhoto(const QImage &photo, int angle, const FrameFormat &format);

} // namespace velmora
