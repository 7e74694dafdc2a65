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

} // namespace velmora
