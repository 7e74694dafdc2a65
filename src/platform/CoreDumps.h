// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velmora
{

/// From now on memory images that the system writes when the process crashes hold no data of the
/// heap and the stacks; called before the first secret is read. The program's own crash report is
/// not affected: it holds addresses of functions only. Any thread; false when it cannot be done.
bool keepMemoryOutOfCoreDumps();

} // namespace velmora
