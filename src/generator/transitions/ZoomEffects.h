// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/transitions/Effect.h"

namespace velmora
{

void composeZoomIn(const EffectFrame &frame);
void composeZoomOut(const EffectFrame &frame);

} // namespace velmora
