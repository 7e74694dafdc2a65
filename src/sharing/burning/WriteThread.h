// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DiscSession.h"
#include "sharing/burning/BurnJob.h"

#include <QThread>

#include <atomic>

namespace velmora
{

class DiscWriter;

/// Burns one video. The drive is used on this thread alone.
class WriteThread : public QThread
{
    Q_OBJECT
public:
    /// @p writer must outlive the thread.
    WriteThread(DiscWriter &writer, const BurnJob &job, QObject *parent = nullptr);
    /// Cancels and waits.
    ~WriteThread() override;

    /// Ends the burn after the step in work, and a write early; erasing is never cut off. Any
    /// thread.
    void cancel() { m_cancelled = true; }
    /// Once the thread has finished.
    bool succeeded() const { return m_succeeded; }

signals:
    /// From the thread, several times a second.
    void progress(int current, int total);

protected:
    void run() override;

private:
    bool burn();
    bool proceeds(bool succeeded) const;
    DiscProgress reporter(const QString &logText);

    DiscWriter &m_writer;
    const BurnJob m_job;
    std::atomic_bool m_cancelled{false};
    std::atomic_bool m_succeeded{false};
};

} // namespace velmora
