// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/GeneratorLog.h"

namespace velmora
{

Q_LOGGING_CATEGORY(generatorLog, "velmora.generator")

} // namespace velmora
