// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <atomic>
#include <functional>

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

    /// @p cancelled is polled while a program runs; once true the program is ended.
    explicit ToolRunner(const std::atomic_bool *cancelled = nullptr, ErrorOutput onError = {});

    /// Runs @p program (absolute path) and waits; output is logged as
    /// "[STD OUT]:'%1' [STD ERR]:'%2'". The child dies with this process.
    ToolResult run(const QString &program, const QStringList &arguments) const;

private:
    const std::atomic_bool *m_cancelled;
    ErrorOutput m_onError;
};

} // namespace velmora
