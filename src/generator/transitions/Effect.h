// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/transitions/PixelArea.h"

namespace velmora
{

/// What an effect gets for one frame. The three areas have the same size, at least 1 x 1; the
/// frame lies strictly between the first one (the outgoing picture) and the end (the target),
/// which no effect has to paint.
struct EffectFrame {
    TargetArea target;
    SourceArea from;
    SourceArea to;
    int frame = 1;
    int count = 2;

    double progress() const { return static_cast<double>(frame) / count; }
};

/// Writes every pixel of the target.
using EffectComposer = void (*)(const EffectFrame &frame);

} // namespace velmora
