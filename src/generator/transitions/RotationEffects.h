// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/transitions/Effect.h"

namespace velmora
{

void composeRotateSingleOut(const EffectFrame &frame);
void composeRotateSingleIn(const EffectFrame &frame);
void composeFlipOver(const EffectFrame &frame);

} // namespace velmora
