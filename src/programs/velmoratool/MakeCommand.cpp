// SPDX-License-Identifier: GPL-3.0-or-later
#include "programs/velmoratool/MakeCommand.h"

#include "app/Paths.h"
#include "generator/pipeline/RenderJob.h"
#include "generator/worker/WorkerProtocol.h"
#include "platform/TerminationWatcher.h"
#include "programs/velmoratool/HelpText.h"

#include <QCoreApplication>
#include <QTextStream>

namespace velmora
{

MakeCommand::MakeCommand(const MakeOptions &options, const AppSettings &settings)
    : m_options(options), m_project(options, settings),
      m_report(options.json ? createProtocolReport() : createTextReport())
{
}

MakeCommand::~MakeCommand() = default;

int MakeCommand::exec()
{
    const RenderError error = m_project.build();
    if (error.isSet())
        return fail(error);
    return m_options.dumpFile.isEmpty() ? render() : writeDocument();
}

int MakeCommand::writeDocument()
{
    const RenderRequest request = m_project.takeRequest();
    QString reason;
    if (!RenderRequest::save(*request.project, m_project.settings(), m_options.dumpFile, &reason))
        return fail(
            {RenderErrorCode::kOutput,
             tr("The project cannot be written as \"%1\": %2.").arg(m_options.dumpFile, reason)});
    m_report->documentWritten(m_options.dumpFile);
    return kExitDone;
}

int MakeCommand::render()
{
    Paths::ensureFolder(Paths::cacheFolder());
    m_job = std::make_unique<RenderJob>(m_project.takeRequest(), m_project.settings(),
                                        Paths::cacheFolder());
    connectJob();
    m_termination = createTerminationWatcher([this] { cancel(); });
    m_job->start();
    if (!m_ended)
        m_loop.exec();
    return m_exitCode;
}

int MakeCommand::fail(const RenderError &error)
{
    m_report->failed(error);
    return exitCodeOf(error);
}

void MakeCommand::connectJob()
{
    connect(m_job.get(), &RenderJob::progress, this,
            [this](qint64 frame, qint64 count) { m_report->progress(frame, count); });
    connect(m_job.get(), &RenderJob::stageChanged, this,
            [this](const QString &stage) { m_report->stage(stage); });
    connect(m_job.get(), &RenderJob::finished, this, [this](const QString &fileName) {
        m_report->finished(fileName);
        end(kExitDone);
    });
    connect(m_job.get(), &RenderJob::failed, this,
            [this](const RenderError &error) { end(fail(error)); });
    connect(m_job.get(), &RenderJob::cancelled, this, [this] {
        m_report->cancelled();
        end(kExitCancelled);
    });
}

void MakeCommand::cancel()
{
    if (!m_ended)
        m_job->cancel();
}

void MakeCommand::end(int exitCode)
{
    m_exitCode = exitCode;
    m_ended = true;
    m_loop.quit();
}

int runMake(const QStringList &arguments, const AppSettings &settings)
{
    QString error;
    const std::optional<MakeOptions> options = parseMakeOptions(arguments, &error);
    if (!options) {
        printError(error);
        printError(QCoreApplication::translate("velmora::MakeCommand",
                                               "\"velmoratool --help\" lists what is possible."));
        return kExitBadArguments;
    }
    if (options->help) {
        QTextStream(stdout) << helpText();
        return kExitDone;
    }
    if (options->version) {
        QTextStream(stdout) << versionText();
        return kExitDone;
    }
    return MakeCommand(*options, settings).exec();
}

} // namespace velmora
