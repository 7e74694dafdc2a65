// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velmora
{

/// A session id as the name of a file or registry key: letters, digits and hyphens are kept,
/// everything else becomes "_", at most 64 characters, never empty.
QString sessionIdToName(const QString &sessionId);

} // namespace velmora
