// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ProcessTree.h"

#include "platform/PlatformLog.h"

#include <QProcess>

#include <windows.h>

namespace velmora
{

namespace
{

// One job for all children. Its last handle closes with this process, however that ends, and the
// system then ends every process of the job.
HANDLE childrenJob()
{
    static const HANDLE job = [] {
        const HANDLE handle = CreateJobObjectW(nullptr, nullptr);
        JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
        limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
        if (handle)
            SetInformationJobObject(handle, JobObjectExtendedLimitInformation, &limits,
                                    sizeof(limits));
        return handle;
    }();
    return job;
}

void assignToJob(qint64 pid)
{
    const HANDLE child =
        OpenProcess(PROCESS_SET_QUOTA | PROCESS_TERMINATE, FALSE, static_cast<DWORD>(pid));
    const bool ok = child && childrenJob() && AssignProcessToJobObject(childrenJob(), child);
    if (!ok)
        qCWarning(lcPlatform).noquote()
            << QStringLiteral("Cannot bind process %1, error: %2").arg(pid).arg(GetLastError());
    if (child)
        CloseHandle(child);
}

} // namespace

std::unique_ptr<QProcess> ProcessTree::createProcess(Group group)
{
    Q_UNUSED(group) // taskkill finds a tree by the processes' parents; groups play no part.
    auto process = std::make_unique<QProcess>();
    QProcess *const child = process.get();
    QObject::connect(child, &QProcess::started, child,
                     [child] { assignToJob(child->processId()); });
    return process;
}

void ProcessTree::terminate(qint64 pid)
{
    kill(pid);
}

void ProcessTree::kill(qint64 pid)
{
    if (pid <= 0)
        return;
    const QStringList arguments = {QStringLiteral("/F"), QStringLiteral("/T"),
                                   QStringLiteral("/PID"), QString::number(pid)};
    QProcess taskkill;
    taskkill.start(QStringLiteral("taskkill.exe"), arguments);
    if (!taskkill.waitForFinished())
        qCWarning(lcPlatform).noquote() << QStringLiteral("Cannot end process tree %1: %2")
                                               .arg(pid)
                                               .arg(taskkill.errorString());
}

} // namespace velmora
