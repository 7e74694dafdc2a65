// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/CoreDumps.h"

#include <windows.h>

// MinGW's werapi.h cannot be compiled, and this is all of it that is needed.
extern "C" __declspec(dllimport) HRESULT WINAPI WerSetFlags(DWORD flags);

namespace velmora
{

namespace
{

constexpr DWORD kNoHeap = 1; // WER_FAULT_REPORTING_FLAG_NOHEAP

}

bool keepMemoryOutOfCoreDumps()
{
    // Reports of the system then carry no heap, whatever the machine's settings say.
    return SUCCEEDED(WerSetFlags(kNoHeap));
}

} // namespace velmora
