// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/ProcessControl.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <csignal>

namespace velmora
{

namespace
{

bool send(qint64 pid, int signalNumber)
{
    return pid > 1 && ::kill(static_cast<pid_t>(pid), signalNumber) == 0;
}

} // namespace

bool ProcessControl::isAlive(qint64 pid)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray stat = file.readAll();
    const int state = stat.lastIndexOf(')') + 2;
    return stat.size() > state && stat.at(state) != 'Z' && stat.at(state) != 'X';
}

QVector<qint64> ProcessControl::childrenOf(qint64 pid)
{
    QVector<qint64> children;
    QDirIterator threads(QStringLiteral("/proc/%1/task").arg(pid),
                         QDir::Dirs | QDir::NoDotAndDotDot);
    while (threads.hasNext()) {
        QFile file(threads.next() + QStringLiteral("/children"));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        for (const QByteArray &child : file.readAll().split(' ')) {
            if (!child.isEmpty())
                children.append(child.toLongLong());
        }
    }
    return children;
}

bool ProcessControl::kill(qint64 pid)
{
    return send(pid, SIGKILL);
}

bool ProcessControl::crash(qint64 pid)
{
    return send(pid, SIGSEGV);
}

void ProcessControl::allowInterrupts() {}

bool ProcessControl::interrupt(qint64 pid)
{
    return send(pid, SIGINT);
}

bool ProcessControl::interruptGroup(qint64 pid)
{
    return pid > 1 && ::kill(static_cast<pid_t>(-pid), SIGINT) == 0;
}

bool ProcessControl::freeze(qint64 pid)
{
    return send(pid, SIGSTOP);
}

} // namespace velmora
