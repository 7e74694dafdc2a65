// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVector>

namespace velmora
{

/// What tests do to other processes, whatever the system.
namespace ProcessControl
{

/// Whether a process runs; one that ended and was not collected yet counts as ended.
bool isAlive(qint64 pid);
QVector<qint64> childrenOf(qint64 pid);
/// Ends the process alone, at once. False when that is not possible.
bool kill(qint64 pid);
/// Ends the process by a violation of its memory.
bool crash(qint64 pid);
/// Processes started from now on can be interrupted.
void allowInterrupts();
/// Does to the process alone, where that is possible, what Ctrl-C does to the program of a
/// terminal.
bool interrupt(qint64 pid);
/// Does it to the group that the process leads, as the terminal does.
bool interruptGroup(qint64 pid);
/// The process goes on no more until it is killed.
bool freeze(qint64 pid);

} // namespace ProcessControl

} // namespace velmora
