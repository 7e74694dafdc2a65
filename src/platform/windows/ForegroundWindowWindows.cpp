// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ForegroundWindow.h"

#include "platform/PlatformLog.h"

#include <windows.h>

namespace velmora
{

void allowForegroundWindow()
{
    // Which process takes it over is not known here.
    if (!AllowSetForegroundWindow(ASFW_ANY))
        qCInfo(lcPlatform) << "The running program may not come to the front, error:"
                           << GetLastError();
}

} // namespace velmora
