// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/ChromeLog.h"

namespace velmora
{

Q_LOGGING_CATEGORY(lcChrome, "velmora.chrome")

} // namespace velmora
