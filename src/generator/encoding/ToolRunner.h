// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <atomic>
#include <functional>

class QProcess;

namespace velmora
{

/// The result of one run of an external program.
struct ToolResult {
    bool started = false;
    bool crashed = false; ///< Ended by a signal, or killed.
    bool cancelled = false;
    int exitCode = -1;
    QByteArray standardOutput;
    QByteArray standardError;
    bool ok() const { return started && !crashed && !cancelled && exitCode == 0; }
    /// The last telling line of the standard error, for messages.
    QString reason() const;
};

/// Runs external programs and waits for them; owns the QProcess. Thread-safe: every run has a
/// process of its own, started from the calling thread, which needs no event loop.
class ToolRunner
{
public:
    /// Called on the running thread with each new piece of standard error.
    using ErrorOutput = std::function<void(const QByteArray &)>;

    /// @p cancelled is polled while a program runs; once true the program is ended, and no further
    /// one is started.
    explicit ToolRunner(const std::atomic_bool *cancelled = nullptr, ErrorOutput onError = {});

    /// Programs that run longer than this are ended and count as crashed; -1 (the default) waits
    /// without limit.
    void setTimeout(int milliseconds) { m_timeout = milliseconds; }

    /// Runs @p program (absolute path) and waits. Of each output the last megabyte is kept. Logs
    /// only a failed start; VideoUtil::printDebugInfo() logs a result. The child dies with this
    /// process.
    ToolResult run(const QString &program, const QStringList &arguments) const;

private:
    bool isCancelled() const;
    bool shouldEnd(qint64 elapsed, ToolResult &result) const;
    void drain(QProcess &process, ToolResult &result) const;

    const std::atomic_bool *m_cancelled;
    ErrorOutput m_onError;
    int m_timeout = -1; ///< ms
};

} // namespace velmora
