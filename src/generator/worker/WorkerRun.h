// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/pipeline/RenderJob.h"
#include "generator/worker/WorkerProtocol.h"

#include <QEventLoop>
#include <QObject>
#include <QTimer>

#include <memory>

namespace velmora
{

class SessionValues;
class TerminationWatcher;

/// One render in the worker process: prints the job's progress as protocol lines and passes pause
/// and cancel of the session values, and the system's request to end, on to the job.
class WorkerRun : public QObject
{
    Q_OBJECT
public:
    WorkerRun(RenderRequest request, const AppSettings &settings, const QString &sessionId,
              const QString &cacheFolder);
    ~WorkerRun() override;

    /// Renders, running an event loop, and returns the exit code.
    int exec();

private:
    void pollSession();
    void cancel();
    void end(int exitCode);

    std::unique_ptr<SessionValues> m_session;
    std::unique_ptr<TerminationWatcher> m_termination;
    RenderJob m_job;
    QTimer m_poll;
    QEventLoop m_loop;
    bool m_paused = false;
    bool m_cancelled = false;
    bool m_ended = false;
    int m_exitCode = kExitFailed;
};

} // namespace velmora
