// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/encoding/ToolRunner.h"

#include "generator/GeneratorLog.h"
#include "platform/ProcessTree.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QRegularExpression>

#include <memory>

namespace velmora
{

namespace
{

constexpr int kStartTimeout = 30000; // ms
constexpr int kPollInterval = 50;    // ms
constexpr int kEndTimeout = 2000;    // ms between asking a program to end and killing it
constexpr int kKeptOutput = 1024 * 1024;

void appendTail(QByteArray &kept, const QByteArray &piece)
{
    kept += piece;
    if (kept.size() > kKeptOutput)
        kept.remove(0, kept.size() - kKeptOutput);
}

/// Lines of the encoder that are progress, statistics or follow-ups of the line that matters.
bool isTelling(const QString &line)
{
    static const QRegularExpression noise(
        QStringLiteral("^(frame=|size=|video:|Conversion failed|Exiting normally|Codec AVOption|"
                       "\\s*Last message repeated|Error while filtering|Press \\[q\\])"));
    return !line.isEmpty() && !noise.match(line).hasMatch();
}

} // namespace

QString ToolResult::reason() const
{
    static const QRegularExpression lineEnd(QStringLiteral("[\r\n]+"));
    static const QRegularExpression component(QStringLiteral("^(\\[[^\\]]*\\] )+"));
    const QStringList lines = QString::fromUtf8(standardError).split(lineEnd);
    for (auto line = lines.crbegin(); line != lines.crend(); ++line) {
        const QString text = QString(*line).remove(component).trimmed();
        if (isTelling(text))
            return text;
    }
    if (!started)
        return QCoreApplication::translate("velmora::ToolRunner", "It could not be started.");
    if (crashed)
        return QCoreApplication::translate("velmora::ToolRunner", "It ended unexpectedly.");
    return QCoreApplication::translate("velmora::ToolRunner", "It ended with code %1.")
        .arg(exitCode);
}

ToolRunner::ToolRunner(const std::atomic_bool *cancelled, ErrorOutput onError)
    : m_cancelled(cancelled), m_onError(std::move(onError))
{
}

ToolResult ToolRunner::run(const QString &program, const QStringList &arguments) const
{
    ToolResult result;
    // A short program would be done before it is looked at for the first time.
    result.cancelled = isCancelled();
    if (result.cancelled)
        return result;
    const std::unique_ptr<QProcess> process =
        ProcessTree::createProcess(ProcessTree::Group::Inherited);
    process->setWorkingDirectory(QCoreApplication::applicationDirPath());
    process->setStandardInputFile(QProcess::nullDevice());
    process->setReadChannel(QProcess::StandardOutput);
    process->start(program, arguments, QIODevice::ReadOnly);
    if (!process->waitForStarted(kStartTimeout)) {
        qCCritical(generatorLog).noquote()
            << "Failed to start" << program << process->errorString();
        result.standardError = process->errorString().toUtf8();
        return result;
    }
    result.started = true;
    QElapsedTimer elapsed;
    elapsed.start();
    while (process->state() != QProcess::NotRunning) {
        process->waitForFinished(kPollInterval);
        drain(*process, result);
        if (process->state() != QProcess::NotRunning && shouldEnd(elapsed.elapsed(), result))
            ProcessTree::end(*process, kEndTimeout);
    }
    drain(*process, result);
    result.crashed = result.crashed || process->exitStatus() == QProcess::CrashExit;
    result.exitCode = process->exitCode();
    return result;
}

bool ToolRunner::isCancelled() const
{
    return m_cancelled && m_cancelled->load();
}

bool ToolRunner::shouldEnd(qint64 elapsed, ToolResult &result) const
{
    result.cancelled = isCancelled();
    const bool late = m_timeout >= 0 && elapsed > m_timeout;
    result.crashed = late;
    return result.cancelled || late;
}

void ToolRunner::drain(QProcess &process, ToolResult &result) const
{
    appendTail(result.standardOutput, process.readAllStandardOutput());
    const QByteArray errors = process.readAllStandardError();
    if (errors.isEmpty())
        return;
    appendTail(result.standardError, errors);
    if (m_onError)
        m_onError(errors);
}

} // namespace velmora
