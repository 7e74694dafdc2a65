// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/SharingLog.h"

namespace velmora
{

Q_LOGGING_CATEGORY(lcSharing, "velmora.sharing")

} // namespace velmora
