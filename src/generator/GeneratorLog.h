// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLoggingCategory>

namespace velmora
{

/// "velmora.generator"
Q_DECLARE_LOGGING_CATEGORY(generatorLog)

} // namespace velmora
