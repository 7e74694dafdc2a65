// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace velmora
{

/// A file that a dying process leaves behind for the next start. One per process.
namespace CrashDump
{

/// From now on a crash of any thread writes @p file before the process ends as it would have ended
/// anyway. The folder must exist. False with @p error set when that cannot be arranged; a stack
/// overflow is only caught on the thread that called this.
bool install(const QString &file, QString *error);
/// Crashes are the system's business again.
void uninstall();

/// Writes the file for the calling thread of a process that goes on. False when not installed or
/// when the file cannot be written.
bool write();

/// What a dump of an earlier process tells, line by line, for the log. Accepts any bytes; empty
/// for a file that is no dump.
QStringList describe(const QString &file);

} // namespace CrashDump

} // namespace velmora
