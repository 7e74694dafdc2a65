// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/PlatformLog.h"

namespace velmora
{

Q_LOGGING_CATEGORY(lcPlatform, "velmora.platform")

} // namespace velmora
