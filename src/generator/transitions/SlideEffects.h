// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/transitions/Effect.h"

namespace velmora
{

void composeSlideFromBottom(const EffectFrame &frame);
void composeSlideFromLeft(const EffectFrame &frame);
void composeSlideFromRight(const EffectFrame &frame);
void composeSlideFromTop(const EffectFrame &frame);
void composeSlideFromTopLeft(const EffectFrame &frame);

} // namespace velmora
