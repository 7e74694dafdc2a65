// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/transitions/FadeEffects.h"

#include "generator/transitions/Easing.h"
#include "generator/transitions/Fade.h"
#include "generator/transitions/PixelRows.h"

#include <algorithm>

namespace velmora
{

namespace
{

using RowFade = void (*)(QRgb *target, const QRgb *source, int count, int weight);

Fade crossFade(double t)
{
    return {Fade::Layer::From, Fade::Layer::To, weightOf(easing::gentle(t))};
}

/// The outgoing picture sinks into the colour by the middle, the target rises out of it.
Fade fadeThrough(Fade::Layer colour, double t)
{
    const bool sinking = t < 0.5;
    const double visible = easing::gentle(sinking ? 1 - 2 * t : 2 * t - 1);
    return {colour, sinking ? Fade::Layer::From : Fade::Layer::To, weightOf(visible)};
}

void composeThrough(const EffectFrame &frame, Fade::Layer colour, RowFade fadeRow)
{
    const Fade fade = fadeThrough(colour, frame.progress());
    const SourceArea &shown = fade.above == Fade::Layer::From ? frame.from : frame.to;
    for (int y = 0; y < frame.target.height; ++y)
        fadeRow(frame.target.row(y), shown.row(y), frame.target.width, fade.weight);
}

} // namespace

std::optional<Fade> fadeAt(TransitionType type, const TransitionPosition &position)
{
    const double t = std::clamp(position.progress(), 0.0, 1.0);
    switch (type) {
    case TransitionType::Random:
    case TransitionType::CrossFade:
        return crossFade(t);
    case TransitionType::FadeToBlack:
        return fadeThrough(Fade::Layer::Black, t);
    case TransitionType::FadeToWhite:
        return fadeThrough(Fade::Layer::White, t);
    default:
        return std::nullopt;
    }
}

void composeCrossFade(const EffectFrame &frame)
{
    const int weight = crossFade(frame.progress()).weight;
    for (int y = 0; y < frame.target.height; ++y) {
        mixRow(frame.target.row(y), frame.from.row(y), frame.to.row(y), frame.target.width, weight);
    }
}

void composeFadeToBlack(const EffectFrame &frame)
{
    composeThrough(frame, Fade::Layer::Black, darkenRow);
}

void composeFadeToWhite(const EffectFrame &frame)
{
    composeThrough(frame, Fade::Layer::White, whitenRow);
}

} // namespace velmora
