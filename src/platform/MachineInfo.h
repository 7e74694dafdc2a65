// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velmora
{

struct SystemInfo;

/// The part of the description that each system gives in its own way: processor, memory, video
/// adapter, battery and, where the system knows better than Qt, the dots per inch. Any thread.
void readMachineInfo(SystemInfo &info);

} // namespace velmora
