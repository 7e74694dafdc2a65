// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <deque>

namespace velmora
{

/// Estimates how long a render still takes from how fast frames came lately. The caller brings the
/// clock, in ms of running time: pauses do not count. Plain value.
class RemainingTime
{
public:
    void reset();
    /// @p frame of @p count frames are done at @p now.
    void update(qint64 now, qint64 frame, qint64 count);
    /// ms that remain at @p now; -1 while unknown.
    qint64 remaining(qint64 now) const;

private:
    struct Sample {
        qint64 time;
        qint64 frame;
    };
    std::deque<Sample> m_samples;
    qint64 m_count = 0;
};

} // namespace velmora
