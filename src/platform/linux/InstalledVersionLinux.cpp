// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/InstalledVersion.h"

namespace velmora
{

// Packages are the package manager's business here; nothing is noted for the program itself.
InstalledVersion readInstalledVersion()
{
    return {};
}

} // namespace velmora
