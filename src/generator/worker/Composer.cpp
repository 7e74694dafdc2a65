// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/worker/Composer.h"

#include "app/Paths.h"
#include "app/TaskThread.h"
#include "generator/GeneratorLog.h"
#include "generator/pipeline/CacheSweeper.h"
#include "platform/ProcessTree.h"
#include "platform/SessionValues.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMetaEnum>
#include <QStandardPaths>
#include <QUuid>

#include <algorithm>

namespace velmora
{

namespace
{

constexpr int kStartTimeout = 30000;    // ms
constexpr int kStopGrace = 5000;        // ms
constexpr int kDestructionGrace = 1500; // ms per step
constexpr int kUnfinishedPercent = 99;  // joining goes on after the last frame

const QString kGeneratorError = QStringLiteral("ERR_GENERATOR");

QString workerProgram()
{
    const QString folder = QCoreApplication::applicationDirPath();
    const QString name = QStringLiteral("velmoratool");
    const QString found = QStandardPaths::findExecutable(name, {folder});
    return found.isEmpty() ? folder + QLatin1Char('/') + name : found;
}

template <typename Enum> const char *nameOf(Enum value)
{
    return QMetaEnum::fromType<Enum>().valueToKey(value);
}

} // namespace

Composer::Composer(QObject *parent) : QObject(parent), m_program(workerProgram())
{
    m_stopTimer.setSingleShot(true);
    m_stopTimer.setInterval(kStopGrace);
    connect(&m_stopTimer, &QTimer::timeout, this, &Composer::stopHarder);
}

Composer::~Composer()
{
    endNow();
    m_process.reset();
    if (m_sweeper)
        m_sweeper->finish();
}

bool Composer::isRunning() const
{
    return m_state != State::Idle;
}

qint64 Composer::elapsed() const
{
    return isRunning() && m_clock.isValid() ? m_clock.elapsed() : m_elapsed;
}

qint64 Composer::runningTime() const
{
    return elapsed() - m_pausedTime - (m_paused ? m_pauseClock.elapsed() : 0);
}

qint64 Composer::remaining() const
{
    return m_state == State::Running ? m_remaining.remaining(runningTime()) : -1;
}

void Composer::run(const QString &requestFile)
{
    if (m_state == State::Running) {
        qCWarning(generatorLog) << "A render is going on already";
        return;
    }
    endNow();
    if (m_process)
        m_process.release()->deleteLater(); // its signal may be what led here
    resetRun();
    createProcess();
    const QStringList arguments{
        QStringLiteral("--session_id"), m_sessionId,
        QStringLiteral("--cache"),      QDir::toNativeSeparators(Paths::cacheFolder()),
        QStringLiteral("--request"),    QDir::toNativeSeparators(requestFile)};
    qCInfo(generatorLog).noquote() << "RUN WORKER ARGS:" << arguments;
    m_clock.start();
    // A slot of failed() may begin another run before start() returns.
    QProcess *process = m_process.get();
    process->start(m_program, arguments, QIODevice::ReadOnly);
    process->waitForStarted(kStartTimeout);
}

void Composer::resetRun()
{
    m_sessionId = QUuid::createUuid().toString(QUuid::WithoutBraces);
    m_session = createSessionValues(m_sessionId, Paths::dataFolder());
    m_session->clear();
    m_state = State::Running;
    m_stopStep = StopStep::Asked;
    m_output = WorkerOutputReader();
    m_failure = RenderError();
    m_reported = RenderError();
    m_resultFile.clear();
    m_stage.clear();
    m_percent = -1;
    m_paused = false;
    m_pausedTime = 0;
    m_elapsed = 0;
    m_remaining.reset();
}

void Composer::createProcess()
{
    m_process = ProcessTree::createProcess(ProcessTree::Group::Own);
    m_process->setStandardInputFile(QProcess::nullDevice());
    QProcess *process = m_process.get();
    connect(process, &QProcess::errorOccurred, this, &Composer::onError);
    connect(process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            &Composer::onFinished);
    connect(process, &QProcess::readyReadStandardError, this, &Composer::onReadyReadStandardError);
    connect(process, &QProcess::started, this, &Composer::onStarted);
    connect(process, &QProcess::stateChanged, this, &Composer::onStateChanged);
    connect(process, &QProcess::readyRead, this, &Composer::onReadRead);
}

void Composer::cancel()
{
    if (m_state != State::Running)
        return;
    m_state = State::Stopping;
    m_session->setCanceled(true);
    m_stopTimer.start();
    emit canceled();
}

void Composer::stopHarder()
{
    if (m_state != State::Stopping)
        return;
    const qint64 pid = m_process->processId();
    if (m_stopStep == StopStep::Asked) {
        qCWarning(generatorLog) << "The worker does not stop; terminating it";
        m_stopStep = StopStep::Terminated;
        ProcessTree::terminate(pid);
        m_stopTimer.start();
    } else if (m_stopStep == StopStep::Terminated) {
        qCWarning(generatorLog) << "The worker does not end; killing it";
        m_stopStep = StopStep::Killed;
        ProcessTree::kill(pid);
    }
}

void Composer::endNow()
{
    if (!m_process)
        return;
    m_process->disconnect(this);
    m_stopTimer.stop();
    if (m_process->state() != QProcess::NotRunning) {
        m_session->setCanceled(true);
        const qint64 pid = m_process->processId();
        if (!m_process->waitForFinished(kDestructionGrace)) {
            ProcessTree::terminate(pid);
            if (!m_process->waitForFinished(kDestructionGrace)) {
                ProcessTree::kill(pid);
                m_process->waitForFinished(kDestructionGrace);
            }
            sweepAfterWorker();
        }
    }
    m_session->clear();
    m_state = State::Idle;
}

void Composer::pause()
{
    setPaused(true);
}

void Composer::resume()
{
    setPaused(false);
}

void Composer::setPaused(bool paused)
{
    if (m_state != State::Running || paused == m_paused)
        return;
    m_session->setPaused(paused);
    if (paused)
        m_pauseClock.start();
    else
        m_pausedTime += m_pauseClock.elapsed();
    m_paused = paused;
}

void Composer::onStarted()
{
    emit started();
}

void Composer::onStateChanged(QProcess::ProcessState newState)
{
    qCDebug(generatorLog).noquote() << QStringLiteral("State:%1").arg(newState);
}

void Composer::onError(QProcess::ProcessError error)
{
    qCWarning(generatorLog).noquote() << QStringLiteral("Error:%1").arg(error) << nameOf(error);
    // Every other error is followed by finished().
    if (error != QProcess::FailedToStart)
        return;
    qCWarning(generatorLog).noquote() << "The worker does not start:" << m_program;
    fail(
        {kGeneratorError, tr("The render program %1 could not be started: %2")
                              .arg(QDir::toNativeSeparators(m_program), m_process->errorString())});
}

void Composer::onReadyReadStandardError()
{
    const QByteArray text = m_process->readAllStandardError();
    qCDebug(generatorLog) << "Data size:" << text.size();
}

void Composer::onReadRead()
{
    onReadyReadStandardOutput();
}

void Composer::onReadyReadStandardOutput()
{
    const QByteArray data = m_process->readAllStandardOutput();
    qCDebug(generatorLog) << "Data size:" << data.size();
    const QVector<WorkerMessage> messages = m_output.feed(data);
    for (const WorkerMessage &message : messages)
        take(message);
}

void Composer::take(const WorkerMessage &message)
{
    switch (message.kind) {
    case WorkerMessage::Kind::Progress:
        takeProgress(message);
        break;
    case WorkerMessage::Kind::Stage:
        m_stage = message.stage;
        break;
    case WorkerMessage::Kind::Finished:
        m_resultFile = message.fileName;
        break;
    case WorkerMessage::Kind::Failed:
        m_reported = message.error;
        break;
    case WorkerMessage::Kind::Cancelled:
    case WorkerMessage::Kind::Invalid:
        break;
    }
}

void Composer::takeProgress(const WorkerMessage &message)
{
    m_remaining.update(runningTime(), message.frame, message.count);
    if (message.count > 0) {
        const double share =
            static_cast<double>(message.frame) / static_cast<double>(message.count);
        reportProgress(std::min(kUnfinishedPercent, static_cast<int>(share * 100.0)));
    }
}

void Composer::reportProgress(int percent)
{
    if (m_state != State::Running || percent <= m_percent)
        return;
    m_percent = percent;
    emit progress(percent);
}

void Composer::onFinished(int exitCode, QProcess::ExitStatus exitStatus)
{
    onReadyReadStandardOutput();
    onReadyReadStandardError();
    const bool normal = exitStatus == QProcess::NormalExit;
    qCInfo(generatorLog) << "ELAPSED:" << m_clock.elapsed();
    qCInfo(generatorLog).noquote()
        << QStringLiteral("Exit Code:%1. Exit status:%2")
               .arg(exitCode)
               .arg(normal ? QStringLiteral("Normal") : QStringLiteral("Crash"));
    const bool done = normal && exitCode == kExitDone && !m_resultFile.isEmpty() &&
                      QFileInfo::exists(m_resultFile);
    if (!done) {
        const RenderError crashed{kGeneratorError, tr("The render program ended unexpectedly.")};
        sweepAfterWorker(); // On Windows the end of a killed program is a normal one.
        fail(normal && m_reported.isSet() ? m_reported : crashed);
        return;
    }
    reportProgress(100);
    const bool wanted = m_state == State::Running;
    becomeIdle();
    if (wanted)
        emit finished(m_resultFile);
}

/// A worker that was killed has cleaned up nothing.
void Composer::sweepAfterWorker()
{
    if (!m_sweeper)
        m_sweeper = std::make_unique<TaskThread>();
    CacheSweeper::sweepAllOn(*m_sweeper, Paths::cacheFolder());
}

void Composer::fail(const RenderError &reason)
{
    const bool wanted = m_state == State::Running;
    becomeIdle();
    if (!wanted)
        return;
    m_failure = reason;
    qCWarning(generatorLog).noquote() << "The render failed:" << reason.code;
    emit failed(kGeneratorError);
}

void Composer::becomeIdle()
{
    m_elapsed = m_clock.elapsed();
    m_stopTimer.stop();
    m_session->clear();
    m_state = State::Idle;
}

} // namespace velmora
