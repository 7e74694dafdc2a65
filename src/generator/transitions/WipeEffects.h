// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/transitions/Effect.h"

namespace velmora
{

void composeWipeLeftToRight(const EffectFrame &frame);
void composeWipeRightToLeft(const EffectFrame &frame);
void composeWipeTopToBottom(const EffectFrame &frame);
void composeWipeBottomToTop(const EffectFrame &frame);
void composeWipeVerticalIn(const EffectFrame &frame);
void composeWipeVerticalOut(const EffectFrame &frame);

} // namespace velmora
