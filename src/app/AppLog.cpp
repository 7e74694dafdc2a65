// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AppLog.h"

namespace velmora
{

Q_LOGGING_CATEGORY(lcApp, "velmora.app")

} // namespace velmora
