// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/transitions/Effect.h"

namespace velmora
{

void composeStretchHorizontal(const EffectFrame &frame);
void composeStretchVertical(const EffectFrame &frame);

} // namespace velmora
