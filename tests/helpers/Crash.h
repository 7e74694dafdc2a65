// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdlib>

namespace velmora
{

/// Ends the process as the system ends one that crashed.
inline void crash()
{
#ifdef _WIN32
    volatile int *volatile nowhere = nullptr; // std::abort() would be an ordinary end there
    *nowhere = 1;
#else
    std::abort(); // the sanitizers take violations for themselves
#endif
}

/// Ends the process by calls that never return.
inline int overflowStack(int depth = 0)
{
    volatile char room[4096]; // used after the call, so that each call needs its own
    room[0] = static_cast<char>(depth);
    const int deepest = depth < 0 ? depth : overflowStack(depth + 1);
    return deepest + room[0];
}

} // namespace velmora
