// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/transitions/Effect.h"

namespace velmora
{

void composePixelate(const EffectFrame &frame);
void composeMosaicSpiralIn(const EffectFrame &frame);
void composeMosaicSpiralOut(const EffectFrame &frame);
void composeMosaicStrips(const EffectFrame &frame);
void composeMosaicWall(const EffectFrame &frame);
void composeCheckerboard(const EffectFrame &frame);

} // namespace velmora
