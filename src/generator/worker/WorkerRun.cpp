// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/worker/WorkerRun.h"

#include "app/Paths.h"
#include "generator/GeneratorLog.h"
#include "generator/worker/ProtocolPrinter.h"
#include "platform/SessionValues.h"
#include "platform/TerminationWatcher.h"

namespace velmora
{

namespace
{

constexpr int kPollInterval = 100; // ms

} // namespace

WorkerRun::WorkerRun(RenderRequest request, const AppSettings &settings, const QString &sessionId,
                     const QString &cacheFolder)
    : m_session(createSessionValues(sessionId, Paths::dataFolder())),
      m_termination(createTerminationWatcher([this] { cancel(); })),
      m_job(std::move(request), settings, cacheFolder)
{
    connect(&m_poll, &QTimer::timeout, this, &WorkerRun::pollSession);
    connect(&m_job, &RenderJob::progress, this, ProtocolPrinter::progress);
    connect(&m_job, &RenderJob::stageChanged, this, ProtocolPrinter::stage);
    connect(&m_job, &RenderJob::finished, this, [this](const QString &fileName) {
        ProtocolPrinter::finished(fileName);
        end(kExitDone);
    });
    connect(&m_job, &RenderJob::failed, this, [this](const RenderError &error) {
        ProtocolPrinter::failed(error);
        end(exitCodeOf(error));
    });
    connect(&m_job, &RenderJob::cancelled, this, [this] {
        ProtocolPrinter::cancelled();
        end(kExitCancelled);
    });
}

WorkerRun::~WorkerRun() = default;

int WorkerRun::exec()
{
    pollSession();
    m_poll.start(kPollInterval);
    m_job.start();
    if (!m_ended)
        m_loop.exec();
    m_poll.stop();
    return m_exitCode;
}

void WorkerRun::pollSession()
{
    if (m_session->isCanceled())
        cancel();
    const bool paused = m_session->isPaused();
    if (paused == m_paused)
        return;
    m_paused = paused;
    qCInfo(generatorLog) << (paused ? "Paused" : "Resumed");
    m_job.setPaused(paused);
}

void WorkerRun::cancel()
{
    if (m_cancelled)
        return;
    m_cancelled = true;
    qCInfo(generatorLog) << "Cancelling";
    m_job.cancel();
}

void WorkerRun::end(int exitCode)
{
    m_exitCode = exitCode;
    m_ended = true;
    m_loop.quit();
}

} // namespace velmora
