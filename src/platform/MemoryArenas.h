// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velmora
{

/// Lets the threads of the process share their free memory instead of each keeping its own, which
/// for pictures of several MB is much. For programs whose threads allocate large pieces and seldom.
/// To be called first in main().
void shareFreeMemory();

} // namespace velmora
