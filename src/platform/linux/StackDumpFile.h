// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace velmora
{

/// The file that the crash handler writes: the frames' addresses up to a zero, the signal's line,
/// then the process's memory map as in /proc/self/maps.
namespace StackDumpFile
{

constexpr char kSignalTag[] = "signal ";

/// "Signal 11", then one line "#0 /path/of/module+0x1234" for each frame, the address relative to
/// where the module was loaded (as addr2line takes it). Accepts any bytes.
QStringList describe(const QString &file);

} // namespace StackDumpFile

} // namespace velmora
