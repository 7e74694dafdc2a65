// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/MemoryArenas.h"

namespace velmora
{

// A process has one heap for all threads here.
void shareFreeMemory() {}

} // namespace velmora
