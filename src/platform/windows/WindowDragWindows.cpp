// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/WindowDrag.h"

#include <windows.h>

namespace velmora
{

bool WindowDrag::isButtonHeld()
{
    const int button = GetSystemMetrics(SM_SWAPBUTTON) ? VK_RBUTTON : VK_LBUTTON;
    return GetAsyncKeyState(button) < 0;
}

// The call that starts a drag returns when the system has ended it.
void WindowDrag::end(QWindow &) {}

} // namespace velmora
