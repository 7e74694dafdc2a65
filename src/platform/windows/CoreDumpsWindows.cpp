// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/CoreDumps.h"

#include <windows.h>

#include <werapi.h>

namespace velmora
{

bool keepMemoryOutOfCoreDumps()
{
    // Reports of the system then carry no heap, whatever the machine's settings say.
    return SUCCEEDED(WerSetFlags(WER_FAULT_REPORTING_FLAG_NOHEAP));
}

} // namespace velmora
