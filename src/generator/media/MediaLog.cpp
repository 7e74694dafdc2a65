// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/media/MediaLog.h"

namespace velmora
{

Q_LOGGING_CATEGORY(mediaLog, "velmora.media")

} // namespace velmora
