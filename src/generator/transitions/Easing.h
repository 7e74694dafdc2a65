// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>

/// Timing curves: they take and give a share from 0 to 1 and hold values beyond.
namespace velmora::easing
{

inline double held(double t)
{
    return std::clamp(t, 0.0, 1.0);
}

/// The share of the way that a part of it, from @p begin to @p end, has gone at @p t.
inline double within(double t, double begin, double end)
{
    return held((t - begin) / (end - begin));
}

/// Starts and stops at rest.
inline double inOut(double t)
{
    const double x = held(t);
    return x * x * (3 - 2 * x);
}

/// Starts and stops softly but never stands still: for movements over the whole frame.
inline double gentle(double t)
{
    return 0.5 * held(t) + 0.5 * inOut(t);
}

/// Arrives at rest.
inline double out(double t)
{
    const double rest = 1 - held(t);
    return 1 - rest * rest * rest;
}

/// Leaves from rest.
inline double in(double t)
{
    const double x = held(t);
    return x * x * x;
}

inline double between(double from, double to, double t)
{
    return from + (to - from) * t;
}

} // namespace velmora::easing
