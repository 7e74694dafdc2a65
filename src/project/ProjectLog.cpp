// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/ProjectLog.h"

namespace velmora
{

Q_LOGGING_CATEGORY(lcProject, "velmora.project")

} // namespace velmora
