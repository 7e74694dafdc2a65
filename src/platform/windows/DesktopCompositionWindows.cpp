// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/DesktopComposition.h"

#include <windows.h>

#include <dwmapi.h>

namespace velmora
{

bool isDesktopComposited()
{
    BOOL enabled = FALSE;
    return SUCCEEDED(DwmIsCompositionEnabled(&enabled)) && enabled != FALSE;
}

} // namespace velmora
