// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velmora
{

/// The name under which QLocalServer listens for the program whose data lies in @p folder; short
/// enough for every system, and out of reach of other users.
QString localServerName(const QString &folder);

} // namespace velmora
