// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/slides/TransitionType.h"

#include <QImage>

class QPainter;

namespace velmora
{

/// Frame @p frame of @p count, counted from 0: the effect has gone frame/count of its way. The
/// still that follows a transition is the frame that would come next.
struct TransitionPosition {
    int frame = 0;
    int count = 1;
    double progress() const { return static_cast<double>(frame) / count; }
};

/// Paints one frame of an effect over the whole of the painter's device, which has the size and
/// the format (RGB32) of @p from and @p to. Stateless; any thread.
using TransitionFunction = void (*)(QPainter &painter, const QImage &from, const QImage &to,
                                    const TransitionPosition &position);

/// The function of an effect; "None" shows the target. "Random" must be resolved before and is
/// shown as "Cross fade".
TransitionFunction transitionFunction(TransitionType type);

/// Composes one frame into @p target, which is reused when it already fits.
void renderTransitionFrame(TransitionType type, const QImage &from, const QImage &to,
                           const TransitionPosition &position, QImage &target);

} // namespace velmora
