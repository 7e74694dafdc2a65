// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>

#include <mutex>

namespace velmora
{

/// Counts the work of a render, in the unit of RenderPlan::totalWork(). Never goes back.
/// Thread-safe.
class Progress
{
public:
    /// Starts anew with @p count units to do.
    void reset(qint64 count);
    qint64 count() const;

    void advance(qint64 units);
    /// A run of the encoder over @p length ms begins, worth @p units.
    void beginRun(qint64 units, qint64 length);
    /// The only run at this time has come to @p position ms; ignored while several go on, since
    /// their reports cannot be told apart.
    void setRunPosition(qint64 position);
    void endRun(qint64 units);
    void finish(); ///< All units are done.

    qint64 value() const; ///< Units done, at most count().
    /// Whether it is time to tell the value in @p value: it rose and the last report is at least
    /// 100 ms old, or it is the end.
    bool takeReport(qint64 *value);

private:
    qint64 currentValue() const;

    mutable std::mutex m_mutex;
    qint64 m_count = 0;
    qint64 m_done = 0;
    int m_runs = 0;
    qint64 m_runUnits = 0;
    qint64 m_runLength = 0;
    qint64 m_runDone = 0; ///< Units of the only run.
    qint64 m_reported = -1;
    QElapsedTimer m_sinceReport;
};

} // namespace velmora
