// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/worker/RemainingTime.h"

#include <algorithm>

namespace velmora
{

namespace
{

// Stills come many times faster than transitions, so the speed is taken over several slides: over
// the later half of the run, and over this much at least.
constexpr qint64 kMinimumWindow = 20000; // ms
constexpr qint64 kMinimumSpan = 1500;    // ms before there is an estimate at all
constexpr qint64 kSampleInterval = 250;  // ms

} // namespace

void RemainingTime::reset()
{
    *this = RemainingTime();
}

void RemainingTime::update(qint64 now, qint64 frame, qint64 count)
{
    m_count = count;
    // The last sample is always the newest; closer ones than the interval replace it.
    if (m_samples.size() > 1 && now - m_samples[m_samples.size() - 2].time < kSampleInterval)
        m_samples.pop_back();
    m_samples.push_back({now, frame});
    const qint64 window = std::max(kMinimumWindow, now / 2);
    while (m_samples.size() > 2 && now - m_samples[1].time >= window)
        m_samples.pop_front();
}

qint64 RemainingTime::remaining(qint64 now) const
{
    if (m_samples.size() < 2)
        return -1;
    const Sample &first = m_samples.front();
    const Sample &last = m_samples.back();
    const qint64 span = last.time - first.time;
    const qint64 frames = last.frame - first.frame;
    if (span < kMinimumSpan || frames <= 0)
        return -1;
    const double left = static_cast<double>(m_count - last.frame) * static_cast<double>(span) /
                        static_cast<double>(frames);
    return std::max<qint64>(0, static_cast<qint64>(left) - (now - last.time));
}

} // namespace velmora
