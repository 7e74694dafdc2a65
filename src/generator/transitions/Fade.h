// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/transitions/Transition.h"

#include <optional>

namespace velmora
{

/// A frame that mixes two plain pictures with one weight for all pixels, so that it can be made in
/// any form of picture in which colours add up.
struct Fade {
    enum class Layer { From, To, Black, White };

    Layer below = Layer::From;
    Layer above = Layer::To;
    int weight = 0; ///< share of the upper one, from 0 to kFullWeight
};

/// The frame of an effect as a fade; nothing for effects that do more than fade.
std::optional<Fade> fadeAt(TransitionType type, const TransitionPosition &position);

} // namespace velmora
