// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/transitions/Effect.h"

namespace velmora
{

void composeCrossFade(const EffectFrame &frame);
void composeFadeToBlack(const EffectFrame &frame);
void composeFadeToWhite(const EffectFrame &frame);

} // namespace velmora
