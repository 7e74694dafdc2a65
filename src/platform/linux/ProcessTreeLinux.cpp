// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ProcessTree.h"

#include "platform/PlatformLog.h"

#include <QProcess>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <sys/prctl.h>
#include <unistd.h>

namespace velmora
{

namespace
{

class BoundProcess : public QProcess
{
public:
    explicit BoundProcess(ProcessTree::Group group) : m_group(group), m_parent(::getpid()) {}

protected:
    // Runs in the child between fork and exec: only async-signal-safe calls are allowed here.
    void setupChildProcess() override
    {
        if (m_group == ProcessTree::Group::Own)
            ::setpgid(0, 0);
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        // A parent that died before the call above will not send the signal any more.
        if (::getppid() != m_parent)
            ::_exit(127);
    }

private:
    const ProcessTree::Group m_group;
    const pid_t m_parent;
};

void signalTree(qint64 pid, int signalNumber)
{
    // 0, 1 and negative numbers mean "this group", "everybody" and other groups to kill().
    if (pid <= 1)
        return;
    if (::kill(static_cast<pid_t>(-pid), signalNumber) != 0 && errno != ESRCH)
        qCWarning(lcPlatform).noquote() << QStringLiteral("Cannot signal process group %1: %2")
                                               .arg(pid)
                                               .arg(QString::fromLocal8Bit(std::strerror(errno)));
}

} // namespace

std::unique_ptr<QProcess> ProcessTree::createProcess(Group group)
{
    return std::make_unique<BoundProcess>(group);
}

void ProcessTree::terminate(qint64 pid)
{
    signalTree(pid, SIGTERM);
}

void ProcessTree::kill(qint64 pid)
{
    signalTree(pid, SIGKILL);
}

void ProcessTree::end(QProcess &process, int graceMs)
{
    process.terminate();
    if (process.waitForFinished(graceMs))
        return;
    process.kill();
    process.waitForFinished(-1);
}

} // namespace velmora
