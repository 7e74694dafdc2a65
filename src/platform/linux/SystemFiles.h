// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velmora
{

struct SystemInfo;

/// Fills processor, memory, video adapter and battery from the files proc/ and sys/ below @p root.
void readSystemFiles(SystemInfo &info, const QString &root);

} // namespace velmora
