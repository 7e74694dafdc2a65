// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLoggingCategory>

namespace velmora
{

/// Log category of this library, "velmora.chrome".
Q_DECLARE_LOGGING_CATEGORY(lcChrome)

} // namespace velmora
