// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velmora
{

/// Lets another process bring a window of its own to the front, as far as this one, which the user
/// has just started, may do so. Where the system does not keep programs from it, this does nothing.
void allowForegroundWindow();

} // namespace velmora
