// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <memory>

class QProcess;

namespace velmora
{

/// Child processes that can be ended together with everything that they started.
namespace ProcessTree
{

enum class Group {
    Own, ///< The child leads a process group (a worker): terminate() and kill() reach its tree.
    Inherited, ///< The child stays in this process's group (an encoder of a worker).
};

/// A QProcess whose child is killed by the system when this process dies for any reason. On Linux
/// that holds for the death of the starting thread too, so the thread must outlive the child.
std::unique_ptr<QProcess> createProcess(Group group);

/// Asks the tree of @p pid, started in its own group, to end (SIGTERM; on Windows as kill()).
void terminate(qint64 pid);
/// Ends the tree at once (SIGKILL; "taskkill.exe /F /T /PID", on a thread of its own). Does not
/// wait for its end.
void kill(qint64 pid);
/// Ends the running child alone and waits for its end. Where programs without windows can be asked
/// to end (SIGTERM), it has @p graceMs for that; elsewhere it is killed at once.
void end(QProcess &process, int graceMs);

} // namespace ProcessTree

} // namespace velmora
