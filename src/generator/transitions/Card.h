// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/transitions/PixelArea.h"
#include "generator/transitions/PixelRows.h"
#include "generator/transitions/QuadShape.h"

#include <QTransform>

namespace velmora
{

/// A picture placed on the frame by any transform that keeps it in front of the viewer: moved,
/// scaled, rotated or tilted in perspective.
struct Card {
    SourceArea picture;
    QTransform placement;      ///< from the picture's coordinates to the frame's
    int opacity = kFullWeight; ///< share over what the frame shows already
    int light = kFullWeight;   ///< brightness

    QuadShape shape() const;
};

/// Paints the card with smooth pixels and smooth edges over the target.
void drawCard(const TargetArea &target, const Card &card);

/// The same without the pixels that lie wholly inside @p hidden.
void drawCardAround(const TargetArea &target, const Card &card, const QuadShape &hidden);

/// Darkens the surroundings of a shape: by @p strength (0 to 1) at its sides, fading out over
/// @p reach pixels. To be painted before the card.
void drawCardShadow(const TargetArea &target, const QuadShape &shape, double reach,
                    double strength);

} // namespace velmora
