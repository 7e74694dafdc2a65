// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/UiLog.h"

namespace velmora
{

Q_LOGGING_CATEGORY(lcUi, "velmora.ui")

} // namespace velmora
