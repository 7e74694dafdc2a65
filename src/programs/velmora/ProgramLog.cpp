// SPDX-License-Identifier: GPL-3.0-or-later
#include "programs/velmora/ProgramLog.h"

namespace velmora
{

Q_LOGGING_CATEGORY(lcProgram, "velmora.program")

} // namespace velmora
