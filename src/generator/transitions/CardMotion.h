// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/transitions/PixelArea.h"

#include <QTransform>

namespace velmora
{

/// Placements for cards that move about a centre of their own.

/// A picture of @p picture's size about @p centre, scaled and turned clockwise in its plane.
QTransform turnedPlacement(const QSize &picture, const QPointF &centre, double scale,
                           double degrees);

/// The picture as a card that turned about its vertical axis by @p degrees (0 shows its face, less
/// than 90 to either side), seen in perspective. Its near edge stays within its unturned height.
QTransform swungPlacement(const QSize &picture, const QPointF &centre, double degrees);

} // namespace velmora
