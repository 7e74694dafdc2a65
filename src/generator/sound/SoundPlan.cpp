// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/sound/SoundPlan.h"

namespace velmora
{

SoundPlan SoundPlan::make(int offset, int fade, qint64 length, qint64 available)
{
    constexpr qint64 second = 1000;
    SoundPlan plan;
    plan.skip = qMax(offset, 0);
    plan.silence = qBound<qint64>(0, -second * offset, qMax<qint64>(length, 0));
    plan.room = qMax<qint64>(length, 0) - plan.silence;
    plan.music = qBound<qint64>(0, available - plan.skip * second, plan.room);
    // Ends that are heard: those of short music come before the video's.
    plan.fade = qBound<qint64>(0, fade * second, plan.music / 2);
    return plan;
}

} // namespace velmora
