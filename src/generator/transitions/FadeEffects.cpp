// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/transitions/FadeEffects.h"

#include "generator/transitions/Easing.h"
#include "generator/transitions/PixelRows.h"

namespace velmora
{

namespace
{

using RowFade = void (*)(QRgb *target, const QRgb *source, int count, int weight);

/// The outgoing picture sinks into the colour by the middle, the target rises out of it.
void fadeThrough(const EffectFrame &frame, RowFade fade)
{
    const double t = frame.progress();
    const SourceArea &shown = t < 0.5 ? frame.from : frame.to;
    const double visible = easing::gentle(t < 0.5 ? 1 - 2 * t : 2 * t - 1);
    const int weight = weightOf(visible);
    for (int y = 0; y < frame.target.height; ++y)
        fade(frame.target.row(y), shown.row(y), frame.target.width, weight);
}

} // namespace

void composeCrossFade(const EffectFrame &frame)
{
    const int weight = weightOf(easing::gentle(frame.progress()));
    for (int y = 0; y < frame.target.height; ++y) {
        mixRow(frame.target.row(y), frame.from.row(y), frame.to.row(y), frame.target.width, weight);
    }
}

void composeFadeToBlack(const EffectFrame &frame)
{
    fadeThrough(frame, darkenRow);
}

void composeFadeToWhite(const EffectFrame &frame)
{
    fadeThrough(frame, whitenRow);
}

} // namespace velmora
