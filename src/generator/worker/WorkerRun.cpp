// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/worker/WorkerRun.h"

#include "app/Paths.h"
#include "generator/GeneratorLog.h"
#include "platform/SessionValues.h"
#include "platform/StandardOutput.h"
#include "platform/TerminationWatcher.h"

namespace velmora
{

namespace
{

constexpr int kPollInterval = 100; // ms
constexpr int kFinalWait = 5000;   // ms that the last line may wait for a slow reader

WorkerMessage messageOf(WorkerMessage::Kind kind)
{
    WorkerMessage message;
    message.kind = kind;
    return message;
}

void printProgress(qint64 frame, qint64 count)
{
    WorkerMessage message = messageOf(WorkerMessage::Kind::Progress);
    message.frame = frame;
    message.count = count;
    // A reader that lags loses this line; a newer one follows.
    StandardOutput::write(WorkerProtocol::encode(message), 0);
}

void printStage(const QString &stage)
{
    WorkerMessage message = messageOf(WorkerMessage::Kind::Stage);
    message.stage = stage;
    StandardOutput::write(WorkerProtocol::encode(message), 0);
}

} // namespace

WorkerRun::WorkerRun(RenderRequest request, const AppSettings &settings, const QString &sessionId,
                     const QString &cacheFolder)
    : m_session(createSessionValues(sessionId, Paths::dataFolder())),
      m_termination(createTerminationWatcher([this] { cancel(); })),
      m_job(std::move(request), settings, cacheFolder)
{
    connect(&m_poll, &QTimer::timeout, this, &WorkerRun::pollSession);
    connect(&m_job, &RenderJob::progress, this, printProgress);
    connect(&m_job, &RenderJob::stageChanged, this, printStage);
    connect(&m_job, &RenderJob::finished, this, [this](const QString &fileName) {
        WorkerMessage message = messageOf(WorkerMessage::Kind::Finished);
        message.fileName = fileName;
        end(message, kExitDone);
    });
    connect(&m_job, &RenderJob::failed, this, [this](const RenderError &error) {
        WorkerMessage message = messageOf(WorkerMessage::Kind::Failed);
        message.error = error;
        end(message, kExitFailed);
    });
    connect(&m_job, &RenderJob::cancelled, this,
            [this] { end(messageOf(WorkerMessage::Kind::Cancelled), kExitCancelled); });
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

void WorkerRun::end(const WorkerMessage &message, int exitCode)
{
    m_exitCode = exitCode;
    m_ended = true;
    if (!StandardOutput::write(WorkerProtocol::encode(message), kFinalWait))
        qCWarning(generatorLog) << "Nobody reads the result";
    m_loop.quit();
}

} // namespace velmora
