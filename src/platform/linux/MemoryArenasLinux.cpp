// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/MemoryArenas.h"

#include <malloc.h>

namespace velmora
{

void shareFreeMemory()
{
    mallopt(M_ARENA_MAX, 2);
}

} // namespace velmora
