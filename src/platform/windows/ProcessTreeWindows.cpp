// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ProcessTree.h"

#include "platform/PlatformLog.h"

#include <QProcess>
#include <QThreadPool>
#include <QVector>

#include <limits>
#include <memory>
#include <vector>

#include <windows.h>

#include <tlhelp32.h>

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

/// Starts a process within the job. Bound to it only afterwards, one whose parent is ended
/// meanwhile would stay for ever, not even begun.
class StartInJob
{
public:
    StartInJob()
    {
        SIZE_T size = 0;
        InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
        m_list.resize(size);
        m_job = childrenJob();
        m_isReady = m_job && InitializeProcThreadAttributeList(attributes(), 1, 0, &size) &&
                    UpdateProcThreadAttribute(attributes(), 0, PROC_THREAD_ATTRIBUTE_JOB_LIST,
                                              &m_job, sizeof(m_job), nullptr, nullptr);
        if (!m_isReady)
            qCWarning(lcPlatform) << "Cannot bind processes, error:" << GetLastError();
    }

    ~StartInJob()
    {
        if (m_isReady)
            DeleteProcThreadAttributeList(attributes());
    }
    StartInJob(const StartInJob &) = delete;
    StartInJob &operator=(const StartInJob &) = delete;

    void operator()(QProcess::CreateProcessArguments &arguments)
    {
        if (!m_isReady)
            return;
        m_startup.StartupInfo = *arguments.startupInfo;
        m_startup.StartupInfo.cb = sizeof(m_startup);
        m_startup.lpAttributeList = attributes();
        arguments.startupInfo = &m_startup.StartupInfo;
        arguments.flags |= EXTENDED_STARTUPINFO_PRESENT;
    }

private:
    LPPROC_THREAD_ATTRIBUTE_LIST attributes()
    {
        return reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(m_list.data());
    }

    std::vector<char> m_list;
    HANDLE m_job = nullptr;
    STARTUPINFOEXW m_startup = {};
    bool m_isReady = false;
};

struct RunningProcess {
    DWORD id;
    DWORD parent;
};

QVector<RunningProcess> runningProcesses()
{
    QVector<RunningProcess> found;
    const HANDLE all = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32W entry = {};
    entry.dwSize = sizeof(entry);
    for (BOOL more = Process32FirstW(all, &entry); more; more = Process32NextW(all, &entry))
        found.append({entry.th32ProcessID, entry.th32ParentProcessID});
    CloseHandle(all);
    return found;
}

/// When the process began; the largest number for one that is not accessible.
quint64 startOf(HANDLE process)
{
    FILETIME start;
    FILETIME unused;
    if (!GetProcessTimes(process, &start, &unused, &unused, &unused))
        return std::numeric_limits<quint64>::max();
    return quint64(start.dwHighDateTime) << 32 | start.dwLowDateTime;
}

// Parents first, so that none can start another child. A process older than its parent belongs to
// an earlier one of that number.
void endTree(const QVector<RunningProcess> &all, DWORD id, quint64 notBefore)
{
    const HANDLE process =
        OpenProcess(PROCESS_TERMINATE | PROCESS_QUERY_LIMITED_INFORMATION, FALSE, id);
    if (!process)
        return;
    const quint64 start = startOf(process);
    if (start >= notBefore) {
        TerminateProcess(process, 1);
        for (const RunningProcess &other : all) {
            if (other.parent == id && other.id != id)
                endTree(all, other.id, start);
        }
    }
    CloseHandle(process);
}

void runTaskkill(qint64 pid)
{
    const QStringList arguments = {QStringLiteral("/F"), QStringLiteral("/T"),
                                   QStringLiteral("/PID"), QString::number(pid)};
    QProcess taskkill;
    taskkill.start(QStringLiteral("taskkill.exe"), arguments);
    if (taskkill.waitForFinished() && taskkill.exitCode() == 0)
        return;
    // Not every edition of Windows has the program, and not every one of those knows trees.
    qCInfo(lcPlatform).noquote() << QStringLiteral("No taskkill.exe for process tree %1: %2")
                                        .arg(QString::number(pid), taskkill.errorString());
    endTree(runningProcesses(), static_cast<DWORD>(pid), 0);
}

} // namespace

std::unique_ptr<QProcess> ProcessTree::createProcess(Group group)
{
    Q_UNUSED(group) // taskkill finds a tree by the processes' parents; groups play no part.
    auto process = std::make_unique<QProcess>();
    const auto start = std::make_shared<StartInJob>();
    process->setCreateProcessArgumentsModifier(
        [start](QProcess::CreateProcessArguments *arguments) { (*start)(*arguments); });
    return process;
}

void ProcessTree::terminate(qint64 pid)
{
    kill(pid);
}

void ProcessTree::kill(qint64 pid)
{
    // Starting a program and waiting for it takes too long for a thread that has windows.
    if (pid > 0)
        QThreadPool::globalInstance()->start([pid] { runTaskkill(pid); });
}

void ProcessTree::end(QProcess &process, int graceMs)
{
    Q_UNUSED(graceMs) // QProcess::terminate() reaches programs with windows only.
    process.kill();
    process.waitForFinished(-1);
}

} // namespace velmora
