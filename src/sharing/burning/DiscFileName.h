// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velmora
{

/// Why @p name cannot be a file's name on a disc that every system reads, as a sentence for the
/// user; empty when it can.
QString discFileNameError(const QString &name);

} // namespace velmora
