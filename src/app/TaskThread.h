// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace velmora
{

/// Does pieces of work on a thread of its own, one after the other, and has each reported on the
/// thread to which this object belongs, by its event loop.
class TaskThread : public QObject
{
    Q_OBJECT
public:
    using Report = std::function<void()>;
    /// Runs on the thread; what it returns, on the thread of this object.
    using Work = std::function<Report()>;

    explicit TaskThread(QObject *parent = nullptr);
    /// Waits for the work in progress. What has not begun is dropped, and so are the reports.
    ~TaskThread() override;

    void add(Work work);
    /// Waits until everything that was added is done. The reports come later, as always.
    void finish();
    /// Deletes the object without waiting: at once, or when the work in progress has ended. Only
    /// the end of the program waits for that.
    void retire();

signals:
    void worked(); ///< From the thread: there is one more report.
    void ended();  ///< From the thread, which does nothing any more.

private:
    void run();
    bool stop(); ///< Whether work is in progress still.
    void report();

    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::condition_variable m_idle;
    // Guarded by m_mutex:
    std::deque<Work> m_waiting;
    std::deque<Report> m_reports;
    bool m_working = false;
    bool m_stopped = false;

    std::thread m_thread; ///< The last member: it uses the others.
};

} // namespace velmora
