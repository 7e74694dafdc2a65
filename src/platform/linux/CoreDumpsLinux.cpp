// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/CoreDumps.h"

#include <QFile>

namespace velmora
{

bool keepMemoryOutOfCoreDumps()
{
    // No kind of mapping is to be dumped. Unlike a process marked as not dumpable, this one can
    // still be looked at by desktop services that check who calls them.
    QFile filter(QStringLiteral("/proc/self/coredump_filter"));
    return filter.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && filter.write("0\n") == 2;
}

} // namespace velmora
