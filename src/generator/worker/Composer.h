// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/pipeline/RenderError.h"
#include "generator/worker/RemainingTime.h"
#include "generator/worker/WorkerOutputReader.h"

#include <QElapsedTimer>
#include <QObject>
#include <QProcess>
#include <QTimer>

#include <memory>

namespace velmora
{

class SessionValues;
class TaskThread;

/// Runs one render at a time in a worker process and turns the worker's life into signals. Lives
/// on a thread with an event loop; never blocks it except in run(), until the worker has started,
/// and in the destructor, which ends a running worker within a few seconds.
class Composer : public QObject
{
    Q_OBJECT
public:
    /// Starts "velmoratool" of the application directory.
    explicit Composer(QObject *parent = nullptr);
    ~Composer() override;

    /// Replaces the worker program by the one at @p program (absolute path).
    void setProgram(const QString &program) { m_program = program; }
    /// Each step of a stop, before the next one, waits @p milliseconds; 5000 by default.
    void setStopGrace(int milliseconds) { m_stopTimer.setInterval(milliseconds); }

    /// True from run() until the worker process is gone, also after cancel().
    bool isRunning() const;
    bool isPaused() const { return m_paused; }
    qint64 elapsed() const;     ///< ms since the last run() started its worker, pauses included.
    qint64 runningTime() const; ///< The same without the pauses.
    qint64 remaining() const;   ///< Estimated ms until the video is finished; -1 while unknown.
    /// The stage that the worker last reported, untranslated.
    const QString &stage() const { return m_stage; }
    /// Why the last run failed; not set before failed() and after a new run().
    const RenderError &failedDetails() const { return m_failure; }
    /// The plain text of failedDetails(), fit for a message box.
    const QString &errorText() const { return m_failure.text; }

public slots:
    /// Renders the project document @p requestFile. Refused with a log line while a render is
    /// going on; one that is still being stopped is ended first.
    void run(const QString &requestFile);
    /// Asks the worker to stop; one that does not is ended, with its encoders, by force. No
    /// further signal of this run follows canceled().
    void cancel();
    void pause();
    void resume();

signals:
    void started();                     ///< Once per run(), when the worker runs.
    void finished(const QString &file); ///< Last signal of a run: the video exists.
    void failed(const QString &err);    ///< Last signal of a run: "ERR_GENERATOR".
    void canceled();                    ///< Last signal of a run; emitted by cancel().
    void progress(int val);             ///< 0 to 100, each value once, never backwards.

private slots:
    void onFinished(int exitCode, QProcess::ExitStatus exitStatus);
    void onStarted();
    void onError(QProcess::ProcessError error);
    void onReadyReadStandardError();
    void onReadyReadStandardOutput();
    void onStateChanged(QProcess::ProcessState newState);
    void onReadRead();

private:
    enum class State { Idle, Running, Stopping };
    enum class StopStep { Asked, Terminated, Killed };

    void resetRun();
    void createProcess();
    void setPaused(bool paused);
    void stopHarder();
    void endNow();
    void becomeIdle();
    void sweepAfterWorker();
    void take(const WorkerMessage &message);
    void takeProgress(const WorkerMessage &message);
    void reportProgress(int percent);
    void fail(const RenderError &reason);

    QString m_program;
    QString m_sessionId;
    std::unique_ptr<SessionValues> m_session;
    std::unique_ptr<QProcess> m_process;
    State m_state = State::Idle;
    StopStep m_stopStep = StopStep::Asked;
    QTimer m_stopTimer;
    WorkerOutputReader m_output;
    RenderError m_failure;
    RenderError m_reported; ///< What the worker said went wrong.
    QString m_resultFile;
    QString m_stage;
    int m_percent = -1;
    bool m_paused = false;
    QElapsedTimer m_clock;
    qint64 m_elapsed = 0; ///< ms of the run that ended last
    QElapsedTimer m_pauseClock;
    qint64 m_pausedTime = 0; ///< ms of all pauses that are over
    RemainingTime m_remaining;
    std::unique_ptr<TaskThread> m_sweeper; ///< From the first worker that ended badly on.
};

} // namespace velmora
