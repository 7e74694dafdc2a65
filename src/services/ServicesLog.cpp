// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/ServicesLog.h"

namespace velmora
{

Q_LOGGING_CATEGORY(lcServices, "velmora.services")

} // namespace velmora
