// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/Progress.h"

#include <QMutexLocker>

namespace velmora
{

namespace
{
constexpr qint64 kReportInterval = 100; // ms
}

void Progress::reset(qint64 count)
{
    const QMutexLocker locker(&m_mutex);
    m_count = count;
    m_done = 0;
    m_runs = 0;
    m_runDone = 0;
    m_reported = -1;
    m_sinceReport.invalidate();
}

qint64 Progress::count() const
{
    const QMutexLocker locker(&m_mutex);
    return m_count;
}

void Progress::advance(qint64 units)
{
    const QMutexLocker locker(&m_mutex);
    m_done += units;
}

void Progress::beginRun(qint64 units, qint64 length)
{
    const QMutexLocker locker(&m_mutex);
    ++m_runs;
    m_runUnits = units;
    m_runLength = length;
    m_runDone = 0;
}

void Progress::setRunPosition(qint64 position)
{
    const QMutexLocker locker(&m_mutex);
    if (m_runs != 1 || m_runLength <= 0)
        return;
    m_runDone = qBound(m_runDone, m_runUnits * position / m_runLength, m_runUnits);
}

void Progress::endRun(qint64 units)
{
    const QMutexLocker locker(&m_mutex);
    --m_runs;
    m_done += units;
    // Which of several runs goes on is not known here, so that it counts only when it ends.
    m_runDone = 0;
    m_runUnits = 0;
}

void Progress::finish()
{
    const QMutexLocker locker(&m_mutex);
    m_done = m_count;
}

qint64 Progress::value() const
{
    const QMutexLocker locker(&m_mutex);
    return currentValue();
}

bool Progress::takeReport(qint64 *value)
{
    const QMutexLocker locker(&m_mutex);
    *value = currentValue();
    if (*value <= m_reported)
        return false;
    const bool early = m_sinceReport.isValid() && m_sinceReport.elapsed() < kReportInterval;
    if (early && *value < m_count)
        return false;
    m_reported = *value;
    m_sinceReport.start();
    return true;
}

qint64 Progress::currentValue() const
{
    return qMin(m_count, qMax(m_reported, m_done + m_runDone));
}

} // namespace velmora
