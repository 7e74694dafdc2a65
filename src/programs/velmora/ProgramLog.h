// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLoggingCategory>

namespace velmora
{

Q_DECLARE_LOGGING_CATEGORY(lcProgram)

} // namespace velmora
