// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ForegroundWindow.h"

namespace velmora
{

void allowForegroundWindow() {}

} // namespace velmora
