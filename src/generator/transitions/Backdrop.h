// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/transitions/PixelArea.h"
#include "generator/transitions/QuadShape.h"

namespace velmora
{

/// Paints a dark, strongly blurred mixture of two pictures behind a card; @p weight (0 to
/// kFullWeight) is the share of @p b. The pixels wholly inside @p hidden stay unpainted.
void drawBackdrop(const TargetArea &target, const SourceArea &a, const SourceArea &b, int weight,
                  const QuadShape &hidden);

} // namespace velmora
