// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "programs/velmoratool/MakeProject.h"
#include "programs/velmoratool/RenderReport.h"

#include <QEventLoop>
#include <QObject>

#include <memory>

namespace velmora
{

class RenderJob;
class TerminationWatcher;

/// The command "make": renders a slideshow in this process, or writes its document.
class MakeCommand : public QObject
{
    Q_OBJECT
public:
    MakeCommand(const MakeOptions &options, const AppSettings &settings);
    ~MakeCommand() override;

    /// Does the work, running an event loop, and returns the exit code. Once only.
    int exec();

private:
    int writeDocument();
    int render();
    int fail(const RenderError &error);
    void connectJob();
    void cancel();
    void end(int exitCode);

    MakeOptions m_options;
    MakeProject m_project;
    std::unique_ptr<RenderReport> m_report;
    std::unique_ptr<RenderJob> m_job;
    std::unique_ptr<TerminationWatcher> m_termination;
    QEventLoop m_loop;
    bool m_ended = false;
    int m_exitCode = 0;
};

/// Runs "make" with the arguments that follow it: parses, shows help or errors, does the work and
/// returns the exit code.
int runMake(const QStringList &arguments, const AppSettings &settings);

} // namespace velmora
