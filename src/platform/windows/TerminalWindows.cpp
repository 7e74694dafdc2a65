// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Terminal.h"

#include <windows.h>

namespace velmora
{

int Terminal::columns()
{
    CONSOLE_SCREEN_BUFFER_INFO info{};
    if (!::GetConsoleScreenBufferInfo(::GetStdHandle(STD_OUTPUT_HANDLE), &info))
        return 0;
    return info.srWindow.Right - info.srWindow.Left + 1;
}

} // namespace velmora
