// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>

class QPainter;

namespace velmora
{

/// The soft shadow around frameless windows.
namespace WindowShadow
{

constexpr int Extent = 14; ///< px by which a window is larger than its frame, on each side
constexpr int Offset = 3;  ///< px by which the shadow lies lower than the frame

/// Paints the shadow of @p frame; what the frame covers is painted over later.
void paint(QPainter &painter, const QRect &frame);

} // namespace WindowShadow

} // namespace velmora
